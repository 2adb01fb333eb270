#include "JetCopy.h"

#include "EngineError.h"
#include "JetFile.h"

using namespace Qt::StringLiterals;

namespace dao {

namespace {

static_assert(JetSignatureLength == jet::SignatureLength);

const QString CatalogueName = u"MSysObjects"_s;

[[noreturn]] void rethrow(const jet::Error& error, const QString& path) {
    if (error.problem() == jet::Problem::Device)
        throw Error(ErrorNumber::CannotOpenFile, u"Cannot open the file '%1'. %2"_s.arg(path, error.text()));
    const QString format = error.problem() == jet::Problem::Damaged
                               ? u"Unrecognized database format: the file '%1' is damaged. %2"_s
                               : u"Unrecognized database format '%1'. %2"_s;
    throw Error(ErrorNumber::UnrecognizedFormat, format.arg(path, error.text()));
}

DataType dataType(jet::ColumnType type) {
    // The numbers are the same but for one.
    return type == jet::ColumnType::Numeric ? DataType::Decimal : static_cast<DataType>(type);
}

Value toValue(const jet::Cell& cell) {
    return std::visit(
        [](const auto& held) -> Value {
            if constexpr (std::is_same_v<std::decay_t<decltype(held)>, std::monostate>)
                return {};
            else
                return held;
        },
        cell);
}

TableDef definitionOf(const jet::Table& table) {
    TableDef definition{.Name = table.name, .Fields = {}, .Indexes = {}, .Properties = {}};
    for (const jet::Column& column : table.columns)
        definition.Fields.append({column.name,
                                  dataType(column.type),
                                  column.size,
                                  column.isAutoNumber ? dbAutoIncrField : 0,
                                  {},
                                  true});
    for (const jet::Property& property : table.properties)
        definition.Properties.append({property.name, dataType(property.type), toValue(property.value)});
    definition.PropertiesAreDamaged = table.propertiesAreDamaged;
    return definition;
}

/// Fills a connection with the tables of a file.
class Copying {
public:
    Copying(Connection& connection, const jet::JetFile& file) : m_connection(connection), m_file(file) {}

    void run() {
        m_origin.version = QString::number(m_file.version()) + u".0"_s;
        // Counts of the list itself are not kept as well as those of other tables.
        if (const jet::Tally& list = m_file.tableListTally(); list.rowsLost > 0)
            m_origin.losses.append({CatalogueName, list.rowsLost, list.isUncertain});
        Transaction transaction(m_connection);
        for (const QString& name : m_file.tableNames())
            copyTable(name);
        transaction.commit();
        m_connection.seal(std::move(m_origin));
    }

private:
    void copyTable(const QString& name) {
        try {
            const TableDef definition = definitionOf(m_file.table(name));
            copyRows(m_connection.addCopiedTable(definition));
        } catch (const jet::Error& error) {
            if (error.problem() != jet::Problem::Damaged)
                throw;
            m_origin.damaged.insert(name.toLower(),
                                    u"The table '%1' is damaged. %2"_s.arg(name, error.text()));
        } catch (const Error& error) {
            if (error.Number() != ErrorNumber::ObjectInvalid) // a name that no table can have here
                throw;
            m_origin.damaged.insert(name.toLower(), error.Description());
        }
    }

    void copyRows(const Table& table) {
        QByteArray parameters = "NULL";
        for (qsizetype i = 1; i <= table.definition.Fields.size(); ++i)
            parameters += ", ?" + QByteArray::number(i);
        Statement& insert =
            m_connection.statement("INSERT INTO " + table.sqlName + " VALUES(" + parameters + ')');
        const jet::Tally tally = m_file.readRows(table.definition.Name, [&insert](const jet::Row& row) {
            const StatementRun run(insert);
            int parameter = 0;
            for (const jet::Cell& cell : row)
                run->bind(++parameter, toValue(cell));
            run->step();
        });
        if (!tally.isWhole())
            m_origin.losses.append({table.definition.Name, tally.rowsLost, tally.isUncertain});
    }

    Connection& m_connection;
    const jet::JetFile& m_file;
    Origin m_origin;
};

} // namespace

bool isJetFile(QByteArrayView start) {
    return jet::hasSignature(start);
}

std::shared_ptr<Connection> copyOfJetFile(const QString& path) {
    try {
        const jet::JetFile file(path);
        auto connection = std::make_shared<Connection>(path, Connection::Mode::Copy);
        Copying(*connection, file).run();
        return connection;
    } catch (const jet::Error& error) {
        rethrow(error, path);
    }
}

} // namespace dao

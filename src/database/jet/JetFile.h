#pragma once

#include "JetError.h"

#include <QByteArrayView>
#include <QIODevice>
#include <QList>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

namespace jet {

/// Bytes that a file has to start with for hasSignature().
inline constexpr qsizetype SignatureLength = 19;
/// Whether a file that starts so is of this family of formats, of a later one that cannot be read included.
[[nodiscard]] bool hasSignature(QByteArrayView start);

/// Type numbers of columns and properties, as the file holds them.
enum class ColumnType : quint8 {
    Boolean = 1,
    Byte = 2,
    Integer = 3, ///< 16 bit
    Long = 4,    ///< 32 bit
    Currency = 5,
    Single = 6,
    Double = 7,
    DateTime = 8,
    Binary = 9,
    Text = 10,
    LongBinary = 11,
    Memo = 12,
    Guid = 15,
    Numeric = 16,
};

/// Nothing (Null), a whole number, a floating number or a text. A Boolean is -1 or 0, a DateTime the text
/// "yyyy-mm-dd" or "yyyy-mm-dd hh:mm:ss". Values of the types Binary, LongBinary, Guid and Numeric are not
/// read and count as Null.
using Cell = std::variant<std::monostate, qint64, double, QString>;
using Row = std::vector<Cell>;

struct Column {
    QString name;
    ColumnType type = ColumnType::Text;
    int size = 0; ///< of a Text: characters at most; of others: bytes, 0 where it tells nothing
    bool isAutoNumber = false;
};

struct Property {
    QString name;
    ColumnType type = ColumnType::Text;
    Cell value;
};

struct Table {
    QString name;
    QList<Column> columns;
    QList<Property> properties;
    bool propertiesAreDamaged = false; ///< some may be missing
};

/// What became of the rows of a table.
struct Tally {
    qint64 rowsRead = 0;
    qint64 rowsLost = 0; ///< known to exist, and not readable
    /// The file is damaged in a way that may have cost further rows, or brought deleted ones back.
    bool isUncertain = false;

    [[nodiscard]] bool isWhole() const { return rowsLost == 0 && !isUncertain; }
};

/// A database file of the format Jet 3 or Jet 4, read and never written.
///
/// No file can do harm, whatever it holds: every access is checked, every chain ends, every row is read once,
/// and the memory used does not grow with what the file says of itself.
class JetFile {
public:
    /// Errors: Device the file cannot be read, NotJet, Newer, Protected, Damaged.
    explicit JetFile(const QString& path);
    /// The same for a device that is open for reading.
    explicit JetFile(std::unique_ptr<QIODevice> device);
    ~JetFile();
    Q_DISABLE_COPY_MOVE(JetFile)

    [[nodiscard]] int version() const; ///< 3 or 4

    /// The user's tables, in the file's order, the unreadable ones included.
    [[nodiscard]] const QStringList& tableNames() const;
    /// Entries of the list of tables that cannot be read: there may be more tables than those.
    [[nodiscard]] const Tally& tableListTally() const;

    /// Error: Damaged where the definition does not hold together.
    [[nodiscard]] Table table(const QString& name) const;

    /// Hands every readable row to `take`, with one cell a column. What is damaged is passed over and
    /// counted. Errors: as table(); Device; whatever `take` throws.
    Tally readRows(const QString& table, const std::function<void(const Row&)>& take) const;

private:
    class Private;
    std::unique_ptr<Private> m_d;
};

} // namespace jet

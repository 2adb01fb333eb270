#pragma once

#include "Value.h"

#include <QList>
#include <QString>

namespace dao {

/// Type numbers as the file's catalogue holds them. A database of this program has fields of the first three;
/// the others occur in files that are read and not written.
enum class DataType : int {
    Integer = 3, ///< 16-bit signed
    Long = 4,    ///< 32-bit signed
    Text = 10,   ///< at most `Size` UTF-16 units

    Boolean = 1, ///< -1 or 0
    Byte = 2,
    Currency = 5, ///< as a floating number
    Single = 6,
    Double = 7,
    Date = 8,   ///< as text, "yyyy-mm-dd" or "yyyy-mm-dd hh:mm:ss"
    Binary = 9, ///< this one, LongBinary, GUID and Decimal: always Null
    LongBinary = 11,
    Memo = 12, ///< text of any length
    GUID = 15,
    Decimal = 20,
};

[[nodiscard]] bool holdsText(DataType type);

inline constexpr int dbAutoIncrField = 16;      ///< field attribute: the engine numbers new rows
inline constexpr int dbRelationDontEnforce = 2; ///< relation attribute: recorded, not enforced

struct Field {
    QString Name;
    DataType Type = DataType::Text;
    int Size = 0;
    int Attributes = 0;
    Value DefaultValue;           ///< Null or an empty text: no default
    bool AllowZeroLength = false; ///< whether a text field takes the empty string

    [[nodiscard]] bool isAutoIncrement() const { return (Attributes & dbAutoIncrField) != 0; }
};

/// An index over one field. Of the flags only `Unique` has an effect; `Primary` is recorded.
struct Index {
    QString Name;
    QString FieldName;
    bool Primary = false;
    bool Unique = false;
};

struct Property {
    QString Name;
    DataType Type = DataType::Text;
    dao::Value Value;
};

struct Relation {
    QString Name;
    QString Table;
    QString ForeignTable;
    QString FieldName;
    QString ForeignName;
    int Attributes = 0;
};

/// The definition of a table, before it is appended to a database and after it was read from one.
struct TableDef {
    QString Name;
    QList<Field> Fields;
    QList<Index> Indexes;
    QList<Property> Properties;
    bool PropertiesAreDamaged = false; ///< the file is, and some may be missing

    /// Position of a field, by name without regard to case; -1 where there is none.
    [[nodiscard]] int fieldIndex(QStringView name) const;
};

/// Rows of a table that a damaged file did not yield.
struct RowLoss {
    QString Table;
    qint64 Rows = 0;          ///< known to be lost
    bool IsUncertain = false; ///< there may be more, or deleted ones may have come back
};

} // namespace dao

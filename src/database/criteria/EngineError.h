#pragma once

#include <QString>

#include <exception>

namespace dao {

/// Numbers of the errors that the engine and its callers raise.
enum class ErrorNumber {
    Overflow = 6,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    DiskFull = 61,
    ObjectNotSet = 91,
    InvalidPattern = 93,
    InvalidUseOfNull = 94,
    TableExists = 3010,
    NoAddNewOrEdit = 3020,
    NoCurrentRecord = 3021,
    DuplicateKey = 3022,
    FileNotFound = 3024,
    ReadOnly = 3027,
    InvalidPath = 3044,
    CannotOpenFile = 3051,
    TooFewParameters = 3061,
    UnknownFieldName = 3070,
    QuerySyntax = 3075,
    FindSyntax = 3077,
    TableNotFound = 3078,
    AmbiguousField = 3079,
    NotABookmark = 3159,
    TextTooLong = 3163,
    FieldNotUpdatable = 3164,
    RecordDeleted = 3167,
    DatabaseExists = 3204,
    CouldNotUpdate = 3260,
    ItemNotFound = 3265,
    EmptyTextNotAllowed = 3315,
    UnrecognizedFormat = 3343,
    ObjectInvalid = 3420,
    DataConversion = 3421,
    /// The program's own: the error has been reported already and is passed over.
    AlreadyReported = 19001,
};

/// The one exception type of the engine. The description is English, complete and fit to be shown.
class Error : public std::exception {
public:
    Error(ErrorNumber number, QString description);

    [[nodiscard]] ErrorNumber Number() const noexcept { return m_number; }
    [[nodiscard]] const QString& Description() const noexcept { return m_description; }
    [[nodiscard]] const char* what() const noexcept override { return m_utf8.constData(); }

private:
    ErrorNumber m_number;
    QString m_description;
    QByteArray m_utf8;
};

/// Error 19001: ends a procedure whose failure the user has been told already.
[[nodiscard]] Error alreadyReported();

/// A whole number that has to fit 16 bits; error 6 (Overflow) where it does not.
[[nodiscard]] qint16 toInteger16(qint64 value);

} // namespace dao

#include "EngineError.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace dao {

Error::Error(ErrorNumber number, QString description)
    : m_number(number), m_description(std::move(description)), m_utf8(m_description.toUtf8()) {}

Error alreadyReported() {
    // The text is what an error number without a text of its own is described by.
    return {ErrorNumber::AlreadyReported, u"Application-defined or object-defined error"_s};
}

qint16 toInteger16(qint64 value) {
    if (value < std::numeric_limits<qint16>::min() || value > std::numeric_limits<qint16>::max())
        throw Error(ErrorNumber::Overflow, u"Overflow"_s);
    return static_cast<qint16>(value);
}

} // namespace dao

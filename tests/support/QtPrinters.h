#pragma once

#include <QDate>
#include <QString>

#include <ostream>

// How failed assertions print values of the toolkit. They stand beside the types they print, that is in the
// global namespace, where the test framework looks for them.

inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray& bytes, std::ostream* out) {
    *out << '"' << bytes.toStdString() << '"';
}

inline void PrintTo(QChar character, std::ostream* out) {
    *out << '\'' << QString(character).toStdString() << '\'';
}

inline void PrintTo(const QDate& date, std::ostream* out) {
    *out << date.toString(Qt::ISODate).toStdString();
}

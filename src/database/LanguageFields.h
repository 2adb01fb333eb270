#pragma once

#include <QString>

namespace lingomat {

/// The two languages of a database and the names of the eight expression fields in table `Vokabular`.
/// Expressions are addressed through these names only: files before version 2 name the fields after their
/// languages.
struct LanguageFields {
    QString Lang1Name;
    QString Lang2Name;
    QString Lang1PrefixField;
    QString Lang1MainField;
    QString Lang1SuffixField;
    QString Lang1KommentarField;
    QString Lang2PrefixField;
    QString Lang2MainField;
    QString Lang2SuffixField;
    QString Lang2KommentarField;

    friend bool operator==(const LanguageFields&, const LanguageFields&) = default;
};

} // namespace lingomat

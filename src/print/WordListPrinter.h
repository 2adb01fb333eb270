#pragma once

#include <QString>

namespace lingomat {

class Printer;

/// What stands at the top of each page.
struct WordListHead {
    QString page; ///< the word that the number of the page follows
    QString path; ///< of the database
    QString left; ///< names of the two languages
    QString right;
};

/// Prints a word list in two columns, on as many pages as it takes.
class WordListPrinter {
public:
    /// Begins the first page. The printer has to outlive this object; ending the printout is up to its owner.
    WordListPrinter(Printer& printer, WordListHead head);

    /// Prints one row below the last one, on another page where this one is full.
    void addRow(const QString& left, const QString& right);

private:
    void PrintHeader(); ///< page line, path and heads of the columns
    /// The left text is cut to its column; the right one is not and may run off the page.
    void PrintRow(const QString& left, const QString& right);
    [[nodiscard]] QString StringCut(const QString& text) const;
    [[nodiscard]] bool pageIsFull() const;

    Printer& m_printer;
    WordListHead m_head;
    int m_page = 0;
    int m_rowsOnPage = 0;
};

} // namespace lingomat

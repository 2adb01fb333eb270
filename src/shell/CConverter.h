#pragma once

#include "CDBCreator.h"
#include "CDBHandler.h"
#include "FormContext.h"
#include "Prompts.h"

#include <functional>
#include <memory>

namespace lingomat {

class UnfinishedFile;

/// Copies the open database, which is of an older format or in a foreign file, into a new one of the current
/// format. The old file stays as it is. The new one appears under its name when it is complete.
class CConverter {
public:
    struct Surroundings {
        std::function<QWidget*()> boxParent;
        /// Asks a question while the windows may hide one another.
        std::function<QMessageBox::StandardButton(const Message&)> ask;
    };
    CConverter(FormContext& context, Surroundings surroundings);
    ~CConverter();
    Q_DISABLE_COPY_MOVE(CConverter)

    /// Asks for the new file's name; empty when the user cancels.
    [[nodiscard]] QString NewDBName();
    /// True when the conversion has run: newName() is the new file, and both files are closed. False when the
    /// user gave it up or it failed, which has been reported; no file has been left or changed then.
    bool Convert();
    [[nodiscard]] const QString& newName() const { return m_newName; }

    /// Copies one field of the old session's current row to the new row in work. Version 2 has the names of
    /// the current format; a file below it names the fields of expressions after its languages.
    void CopyOneScalar(const QString& field, int oldVersion);
    /// Makes rows of the areas that the old row holds in one text. For "Bereiche"; any other name does
    /// nothing.
    void ConvertScalarToNDim(const QString& field);

private:
    [[nodiscard]] CDBHandler& old();
    void tellWhatIsLost(int version);
    bool createFile();
    [[nodiscard]] bool chooseTarget();
    [[nodiscard]] bool mayReplace();
    void copyAll(int version);
    void copyOldRows(int version);
    void copyOldRow(int version);
    void copyTables();
    void copyTable(const QString& table);
    void showProgress(qint64 rows);
    void advanceProgress();
    void closeBoth();
    void tellWhatWasLost();
    [[nodiscard]] QWidget* boxParent() const;
    void reportAreaError(const QString& description);

    FormContext& m_context;
    Surroundings m_surroundings;
    QString m_newName;
    CDBCreator m_creator;
    CDBHandler m_handler; ///< the new file; the old one stays that of the shared state
    std::unique_ptr<UnfinishedFile> m_file;
    bool m_replace = false; ///< an existing file of that name
    bool m_storingAreas = false;
    int m_areaErrors = 0;
    qint64 m_entriesWithoutKey = 0;
};

} // namespace lingomat

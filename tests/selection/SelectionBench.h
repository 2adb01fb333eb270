#pragma once

#include "FlexGrid.h"
#include "Form2.h"
#include "Liste.h"
#include "TestContext.h"
#include "Trainer.h"

#include <QHash>
#include <QListWidget>

namespace lingomat {

/// The selection form with everything below it: a small file on the disk, an open session.
struct SelectionBench {
    using Fields = QHash<QString, dao::Value>;

    struct Entry {
        QString main1;
        Fields fields{};
        QStringList bereiche{};
        QStringList grammatikalisch{};
        QStringList funktional{};
    };

    explicit SelectionBench(const QString& language = QStringLiteral("En"));

    /// Creates the file "German", "English" and opens it.
    void openDatabase();
    /// Adds an entry with its areas and attributes, which need not exist. Returns its ID.
    QString add(const Entry& entry);
    void addReference(const QString& von, const QString& nach, const QString& type);
    void addRow(dao::Recordset& table, const Fields& fields);
    /// Makes everything that was added known to the session, loads list and form.
    void load();
    /// Opens a file with the given entries and loads.
    void loadWith(const QList<Entry>& entries);

    /// The main parts of language 1 in the list, from the first row to the last.
    [[nodiscard]] QStringList listed();
    [[nodiscard]] QString cell(int row, int column) { return list.MSFlexGrid1().TextMatrix(row, column); }
    [[nodiscard]] QString statusText();
    [[nodiscard]] dao::Recordset& selection() { return context.state.DBHandler.RecordsetAuswahl; }

    // The form, as a user has it.
    void click(const char* button);
    void trigger(const char* menuEntry);
    void type(const char* box, const QString& text); ///< puts the text in place of what the box holds
    [[nodiscard]] QString text(const char* box);
    [[nodiscard]] QListWidget& listBox(const QString& name) { return child<QListWidget>(form, name); }
    [[nodiscard]] QStringList items(const QString& list);
    /// Chooses the values of a pair, by moving them from the left list to the right one.
    void choose(const QString& kind, const QStringList& values);
    void selectTab(int number); ///< from 1
    void run() { click("Command4"); }

    TestContext context;
    Liste list;
    Trainer trainer;
    Form2 form;

private:
    void link(const QString& id, const QStringList& values, dao::Recordset& table, const QString& textField,
              const QString& keyField, dao::Recordset& links);
};

} // namespace lingomat

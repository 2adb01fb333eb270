#pragma once

#include "FormContext.h"

#include <QWidget>

class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QStackedWidget;
class QTabBar;
class QVBoxLayout;

namespace lingomat {

class FlexGrid;
class TrainerReferences;

/// What the Trainer tells of an entry beside its expressions, in three panels behind a strip of tabs.
class TrainerPanels final : public QWidget {
    Q_OBJECT

public:
    static constexpr int ReferencesTab = 3;

    TrainerPanels(FormContext& context, QWidget* parent);

    /// Fills the attributes of all panels from a row of the list's grid. References are loaded apart.
    void showRow(const FlexGrid& list, int row);
    void ClearDetails(); ///< empties all panels

    [[nodiscard]] TrainerReferences& references() { return *m_references; }
    [[nodiscard]] int tab() const; ///< the one on top, from 1
    void setTab(int number);

Q_SIGNALS:
    void tabChanged(int number); ///< the user, or setTab, has put another one on top

private:
    [[nodiscard]] QWidget* newAttributes();
    [[nodiscard]] QWidget* newDetails();
    QListWidget* addList(QVBoxLayout& column, const QString& label, const QString& name);
    QPlainTextEdit* addText(QVBoxLayout& column, const QString& label, const QString& name);
    QLineEdit* addField(QVBoxLayout& column, const QString& label, const QString& name);

    QTabBar* m_tabs = nullptr;
    QStackedWidget* m_panels = nullptr;
    QLineEdit* m_wortart = nullptr;
    QListWidget* m_grammatikalisch = nullptr;
    QListWidget* m_funktional = nullptr;
    QLineEdit* m_quelle = nullptr;
    QListWidget* m_bereiche = nullptr;
    QPlainTextEdit* m_beispielsatz = nullptr;
    QPlainTextEdit* m_zusatzinfo = nullptr;
    QLineEdit* m_eingabedatum = nullptr;
    QLineEdit* m_aenderungsdatum = nullptr;
    QLineEdit* m_score = nullptr;
    TrainerReferences* m_references = nullptr;
};

} // namespace lingomat

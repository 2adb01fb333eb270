#pragma once

#include <QDialog>

#include <array>
#include <functional>

class QLabel;
class QLineEdit;
class QRadioButton;

namespace lingomat {

class FlexGrid;
class Prompts;

/// What a search works on: a grid that shows expressions in two languages.
struct SearchTarget {
    FlexGrid& grid;
    std::array<int, 2> columns;                 ///< of the first and of the second language
    std::array<QString, 2> languages;           ///< their names
    std::function<void()> sortByCol;            ///< sorts by the grid's current column
    std::function<void()> markRow;              ///< marks the grid's current row
    QString Aufrufer = QStringLiteral("Liste"); ///< the form that searches: "Liste" or "NeueRelation"
};

/// The incremental search. Making it sorts the grid by the chosen language; each change of the text makes the
/// first row current, and marks it, whose expression begins with the text, whatever the case. Rows are never
/// filtered.
class frmSuchen final : public QDialog {
    Q_OBJECT

public:
    frmSuchen(Prompts& prompts, SearchTarget target, QWidget* parent = nullptr);

    const QString Aufrufer;

    void SetUserInterfaceProperties();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void buildWidgets();
    void connectEvents();
    void Form_Load();
    void Form_Activate();
    void Option_Click(int language, bool set);
    void txtAusdruck_Change();
    void Command1_Click(); ///< "Close"

    void sortBy(int language);
    /// First row in view whose expression begins with the text; 0 where there is none.
    [[nodiscard]] int firstRowWith(const QString& beginning) const;
    void go(int row);

    Prompts& m_prompts;
    SearchTarget m_target;
    QLineEdit* m_text = nullptr;
    std::array<QRadioButton*, 2> m_options{};
    QLabel* m_notFound = nullptr;
};

} // namespace lingomat

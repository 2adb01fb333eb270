#pragma once

#include <QDialog>

class QLineEdit;
class QPushButton;

namespace lingomat {

class FlexGrid;

/// Shows the entries that a wrong answer may have been meant for. Whoever opens it fills its grid: the
/// expressions in columns 0 and 1, how well they fit in column 2, which is hidden.
class Bedeutung final : public QDialog {
    Q_OBJECT

public:
    /// The headings are those of columns 0 and 1.
    Bedeutung(const QString& heading0, const QString& heading1, QWidget* parent = nullptr);

    [[nodiscard]] FlexGrid& MSFlexGrid1() { return *m_grid; }
    /// Makes sure that the grid has that row.
    void ExtendRow(qint16 row);
    void SetUserInterfaceProperties();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void buildWidgets();
    void Form_Activate();
    void fitColumns();

    FlexGrid* m_grid = nullptr;
    QLineEdit* m_focus = nullptr; ///< Text1
    QPushButton* m_ok = nullptr;
};

} // namespace lingomat

#pragma once

#include <QDialog>

class QPushButton;

namespace lingomat {

/// Asks whether a remembered answer was the expected one.
class ConfirmDlg final : public QDialog {
    Q_OBJECT

public:
    explicit ConfirmDlg(QWidget* parent = nullptr);

    /// "Yes" or "No". Closing the window by its frame leaves it as it stood.
    QString Ergebnis;

protected:
    void showEvent(QShowEvent* event) override;

private:
    [[nodiscard]] QPushButton* newAnswer(const QString& name, const QString& answer);

    QPushButton* m_yes;
};

} // namespace lingomat

#pragma once

#include <QDialog>

class QLabel;
class QPushButton;

namespace lingomat {

/// Asks whether a typed answer that differs from the stored expression is really an error.
class ConfirmForm final : public QDialog {
    Q_OBJECT

public:
    explicit ConfirmForm(QWidget* parent = nullptr);

    /// "Ja": the error stands; "Nein": it is none. Closing the window by its frame means "Ja".
    QString Ergebnis;

    /// What the form sets against each other; to be called before it is shown.
    void setExpressions(const QString& typed, const QString& stored);

protected:
    void showEvent(QShowEvent* event) override;

private:
    [[nodiscard]] QLabel* newLabel(const QString& name);
    [[nodiscard]] QPushButton* newAnswer(const QString& name, const QString& answer);

    QLabel* m_typed;
    QLabel* m_stored;
    QPushButton* m_yes;
};

} // namespace lingomat

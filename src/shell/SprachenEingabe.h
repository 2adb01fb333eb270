#pragma once

#include <QDialog>

class QLineEdit;
class QPushButton;

namespace lingomat {

class Prompts;

/// What of a text a language name may hold: letters and digits. Blanks go, and so do the signs that part
/// the two names in the file.
[[nodiscard]] QString allowedInLanguageName(const QString& text);

/// Asks for the two languages of a new database. Comes up with empty boxes each time.
class SprachenEingabe final : public QDialog {
    Q_OBJECT

public:
    explicit SprachenEingabe(Prompts& prompts, QWidget* parent = nullptr);

    // Result. The names are those of the last OK.
    QString Language1;
    QString Language2;
    bool LanguagesAccepted = false;
    bool LanguagesCancelled = false;

    void SetUserInterfaceProperties();
    void reject() override; ///< Escape and the frame's button are cmdCancel

protected:
    void showEvent(QShowEvent* event) override;

private:
    void buildWidgets();
    [[nodiscard]] QLineEdit* newBox(const QString& name);
    /// Takes out what a language name must not hold, with a message. True when the box may stay as it is.
    bool CheckInput(QLineEdit& box);
    void OK_Click();        ///< "OK"
    void cmdCancel_Click(); ///< "Cancel"

    Prompts& m_prompts;
    QLineEdit* m_sprache1 = nullptr;
    QLineEdit* m_sprache2 = nullptr;
};

} // namespace lingomat

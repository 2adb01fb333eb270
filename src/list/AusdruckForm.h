#pragma once

#include "ExpressionText.h"

#include <QDialog>

class QLineEdit;

namespace lingomat {

class FontHelp;
class Prompts;

/// Asks for one expression as its four parts.
///
/// The caller fills the fields and shows the dialog modally. Afterwards Bestaetigt tells whether the user
/// entered something, and the four texts hold what the last OK left. The fields are empty again then.
class AusdruckForm final : public QDialog {
    Q_OBJECT

public:
    AusdruckForm(Prompts& prompts, FontHelp& pad, QWidget* parent = nullptr);

    QString Prefix;
    QString Main;
    QString Suffix;
    QString Kommentar;
    bool Bestaetigt = false; ///< closed with OK, and not all four texts were empty

    void fill(const ExpressionParts& parts);
    [[nodiscard]] ExpressionParts parts() const { return {Prefix, Main, Suffix, Kommentar}; }

    void SetUserInterfaceProperties();
    void reject() override; ///< Escape and the window's own button are Cancel

protected:
    void showEvent(QShowEvent* event) override;

private:
    void buildWidgets();
    [[nodiscard]] QLineEdit* newField(const QString& name);
    void cmdOK_Click();
    void cmdCancel_Click(); ///< "Cancel"
    void cmdFont_Click();   ///< "Special Characters..."
    void CloseForm();

    Prompts& m_prompts;
    FontHelp& m_pad;
    QLineEdit* m_prefix = nullptr;
    QLineEdit* m_main = nullptr;
    QLineEdit* m_suffix = nullptr;
    QLineEdit* m_comment = nullptr;
};

} // namespace lingomat

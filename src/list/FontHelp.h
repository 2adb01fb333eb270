#pragma once

#include <QDialog>

class QGridLayout;
class QLineEdit;

namespace lingomat {

/// The pad of characters that a keyboard may lack. A press copies the character to the clipboard, from where
/// the user pastes it into any field.
///
/// There is one pad, and it is modeless. It stays usable while a modal dialog is up, by hanging on to that
/// dialog's window; a window of its own kind would be locked out with all others.
class FontHelp final : public QDialog {
    Q_OBJECT

public:
    explicit FontHelp(QWidget* parent = nullptr);

    /// Shows the pad, or brings it back in front, for the window that `asker` stands in.
    void showFor(QWidget& asker);

    /// Shows the text in Text1, all of it selected, and copies it to the clipboard.
    void AddToActive(const QString& character);
    /// Appends a text to that of a field, which takes the focus.
    static void AddTo(QLineEdit& field, const QString& character);

    void SetUserInterfaceProperties();

protected:
    bool event(QEvent* event) override;

private:
    void buildWidgets();
    void addCharacters(QGridLayout& pad);
    /// Makes the pad a child of the dialog that would lock it out.
    void followModalDialog();
    void follow(const QWidget& window);

    QLineEdit* m_text1 = nullptr;
};

} // namespace lingomat

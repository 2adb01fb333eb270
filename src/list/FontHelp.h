#pragma once

#include <QDialog>

class QGridLayout;
class QLineEdit;

namespace lingomat {

class ModalFollower;

/// The pad of characters that a keyboard may lack. A press copies the character to the clipboard, from where
/// the user pastes it into any field.
///
/// There is one pad, and it is modeless. It stays usable while a modal dialog is up.
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

private:
    void buildWidgets();
    void addCharacters(QGridLayout& pad);

    ModalFollower* m_follower;
    QLineEdit* m_text1 = nullptr;
};

} // namespace lingomat

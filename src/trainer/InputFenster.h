#pragma once

#include <QDialog>

class QComboBox;
class QLineEdit;
class QPushButton;
class QToolButton;

namespace lingomat {

class EqualCharacters;

/// Takes a typed answer, in a box that stands over the line where the solution will appear.
class InputFenster final : public QDialog {
    Q_OBJECT

public:
    /// The pairs of equal characters are those at the time of the answer.
    explicit InputFenster(const EqualCharacters& equal, QWidget* parent = nullptr);

    /// The last answer, cleaned up. Closing the window by its frame is an empty answer.
    QString Ausdruck;

    /// Where the box for the answer has to stand, in pixels of the screen, and the font to write in.
    void placeOver(const QRect& solutionLine, const QFont& font);
    void setMainOnly(bool mainOnly);

    void done(int result) override;

Q_SIGNALS:
    void mainOnlyChanged(bool mainOnly); ///< the user has changed what this and later answers compare
    void specialCharactersRequested();   ///< the pad of special characters is wanted

protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void buildWidgets();
    void insertCharacter(const QString& character);
    void moveIntoPlace();

    const EqualCharacters& m_equal;
    QLineEdit* m_text = nullptr;
    QComboBox* m_characters = nullptr;
    QPushButton* m_pad = nullptr;
    QToolButton* m_mainOnly = nullptr;
    QPushButton* m_ok = nullptr;
    QRect m_solutionLine;
};

} // namespace lingomat

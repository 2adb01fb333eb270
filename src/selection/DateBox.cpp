#include "DateBox.h"

#include <QKeyEvent>
#include <QStyle>
#include <QStyleOptionFrame>

using namespace Qt::StringLiterals;

namespace lingomat {

namespace {

bool typesOneCharacter(const QKeyEvent& event) {
    const bool command = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return !command && event.text().size() == 1 && event.text().front().isPrint();
}

} // namespace

DateBox::DateBox(const QString& name, int digits, QWidget* parent) : QLineEdit(parent) {
    setObjectName(name);
    setMaxLength(digits);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize DateBox::sizeHint() const {
    // Room for one digit more, so that the text does not scroll under the cursor.
    const QSize text(fontMetrics().horizontalAdvance(QString(maxLength() + 1, u'0')),
                     QLineEdit::sizeHint().height());
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QSize frame = style()->sizeFromContents(QStyle::CT_LineEdit, &option, QSize(text.width(), 0), this);
    return {frame.width() + 4, text.height()};
}

QSize DateBox::minimumSizeHint() const {
    return sizeHint();
}

void DateBox::keyPressEvent(QKeyEvent* event) {
    if (!typesOneCharacter(*event)) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    makeRoom();
    QString typed = text();
    const int start = hasSelectedText() ? selectionStart() : cursorPosition();
    typed.replace(start, selectedText().size(), event->text());
    QLineEdit::keyPressEvent(event);
    // A correction leaves the cursor behind the text; the next digit belongs behind the one just typed.
    if (text() != typed && text() != u'0' + typed)
        setCursorPosition(start + 1);
}

/// Selects the character that the next one takes the place of, where the box is full.
void DateBox::makeRoom() {
    if (hasSelectedText() || text().size() < maxLength())
        return;
    if (cursorPosition() < text().size()) {
        setSelection(cursorPosition(), 1);
    } else if (text().startsWith(u'0')) {
        const QSignalBlocker quiet(this);
        setText(text().mid(1));
    }
}

} // namespace lingomat

#include "LengthLimit.h"

#include "ExpressionText.h"
#include "Prompts.h"

#include <QComboBox>
#include <QLineEdit>

namespace lingomat {

void limitLength(QLineEdit& box, int length, Prompts& prompts) {
    QObject::connect(&box, &QLineEdit::textChanged, &box, [&box, length, &prompts](const QString& text) {
        if (text.size() <= length)
            return;
        prompts.beep();
        box.setText(TruncateText(text, length)); // puts the caret at the end
    });
}

void limitLength(QComboBox& box, int length, Prompts& prompts) {
    limitLength(*box.lineEdit(), length, prompts);
}

} // namespace lingomat

#include "Prompts.h"

namespace lingomat {

void Prompts::information(QWidget* parent, const QString& text) {
    message(parent, {.icon = QMessageBox::Information, .text = text});
}

void Prompts::exclamation(QWidget* parent, const QString& text) {
    message(parent, {.icon = QMessageBox::Warning, .text = text});
}

void Prompts::critical(QWidget* parent, const QString& text) {
    message(parent, {.icon = QMessageBox::Critical, .text = text});
}

bool Prompts::yesNo(QWidget* parent, const QString& text) {
    const Message question{.icon = QMessageBox::Question,
                           .text = text,
                           .buttons = QMessageBox::Yes | QMessageBox::No,
                           .defaultButton = QMessageBox::No};
    return message(parent, question) == QMessageBox::Yes;
}

} // namespace lingomat

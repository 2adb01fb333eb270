#pragma once

#include <QString>

#include <span>

class QWidget;

namespace lingomat {

/// One line of a form's table of texts. `object` is the objectName of a control, menu, action or tab page
/// below the form (or of the form itself: its title). An empty text leaves what is there.
struct FormText {
    const char* object = nullptr;
    const char16_t* german = nullptr;
    const char16_t* english = nullptr;
    const char16_t* germanTip = nullptr;
    const char16_t* englishTip = nullptr;
};

/// Puts the texts of the interface language on the form's controls. Every name of the table has to exist
/// below the form: one that does not is a programming error and stops a debug build.
void applyTexts(QWidget& form, std::span<const FormText> table);

} // namespace lingomat

#include "InternalCharacters.h"

#include "ExpressionText.h"
#include "Prompts.h"

using namespace Qt::StringLiterals;

namespace lingomat {

qsizetype CheckForInternalCharacters(Prompts& prompts, QWidget* parent, const QString& text) {
    const qsizetype position = positionOfInternalCharacter(text);
    if (position != 0) {
        Message refusal;
        refusal.text =
            u"Die Zeichen '@' und ';' werden intern verwendet und dürfen nicht eingegeben werden!"_s;
        prompts.message(parent, refusal);
    }
    return position;
}

} // namespace lingomat

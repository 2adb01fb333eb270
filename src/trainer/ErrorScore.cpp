#include "ErrorScore.h"

#include <algorithm>

namespace lingomat {

int scoreAfterVerdict(const QString& score, bool answeredRight) {
    const bool isScore = score.size() == 1 && score[0] >= u'1' && score[0] <= u'6';
    const int before = isScore ? score[0].unicode() - u'0' : 0;
    return std::clamp(before + (answeredRight ? -1 : 1), LowestErrorScore, HighestErrorScore);
}

} // namespace lingomat

#include "TrainingWalk.h"

#include "EngineError.h"

#include <cmath>

namespace lingomat {

qint16 drawnEntry(int count, double random) {
    return static_cast<qint16>(static_cast<int>(std::floor(count * random)) + 1);
}

IntegerArray shuffledEntries(int count, const std::function<double()>& next,
                             const std::function<void(int place)>& placed) {
    IntegerArray entries;
    entries.redim(count);
    std::vector<bool> isTaken(static_cast<size_t>(count) + 1);
    for (int place = 1; place <= count; ++place) {
        placed(place);
        qint16 entry = drawnEntry(count, next());
        while (isTaken[static_cast<size_t>(entry)])
            entry = drawnEntry(count, next());
        isTaken[static_cast<size_t>(entry)] = true;
        entries(place) = entry;
    }
    return entries;
}

IntegerArray openLoop(int count) {
    IntegerArray status;
    status.redim(count);
    for (int place = 1; place <= count; ++place)
        status(place) = static_cast<qint16>(place);
    return status;
}

LoopPlace nextOpenPlace(int position, int roundPosition, const LoopSession& session) {
    LoopPlace place;
    place.position = position;
    place.roundPosition = roundPosition;
    const auto beginRound = [&] {
        place.position = 1;
        place.roundPosition = 0;
        if (session.entries != session.answeredRight)
            place.left = session.entries - session.answeredRight;
    };

    if (place.position > session.entries)
        beginRound();
    const int start = place.position;
    while (session.status(place.position) == LoopEntryDone) {
        ++place.position;
        if (place.position == session.rows)
            beginRound();
        if (place.position == start)
            return place;
    }
    ++place.roundPosition;
    place.isOpen = true;
    return place;
}

} // namespace lingomat

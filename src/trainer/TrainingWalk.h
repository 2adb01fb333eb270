#pragma once

#include "IntegerArray.h"

#include <functional>
#include <optional>

namespace lingomat {

// The rules by which a session walks through its entries, told without a window. Entries and places count
// from 1.

/// Marks an entry of the loop that was answered right.
inline constexpr qint16 LoopEntryDone = -1;

/// The entry, of `count`, that a random number from [0, 1) draws.
[[nodiscard]] qint16 drawnEntry(int count, double random);

/// A permutation of 1 to `count`, drawn by rejection: place after place takes the next entry drawn that no
/// place has yet. `next` gives random numbers from [0, 1). `placed` is told each place before it is drawn.
[[nodiscard]] IntegerArray shuffledEntries(int count, const std::function<double()>& next,
                                           const std::function<void(int place)>& placed);

/// The state in which every entry of the loop is open: cell i holds i.
[[nodiscard]] IntegerArray openLoop(int count);

/// Where a session stands in its loop.
struct LoopPlace {
    int position = 0;        ///< place in the walk
    int roundPosition = 0;   ///< entries visited in the present round
    bool isOpen = false;     ///< `position` names an open entry; false: no entry is open
    std::optional<int> left; ///< entries of the round that began on the way; nothing where none began
};

/// What the loop needs to know of the session.
struct LoopSession {
    const IntegerArray& status; ///< per position: LoopEntryDone, or anything else while it is open
    int entries = 0;            ///< entries at the start of the session
    int rows = 0;               ///< rows of the list now, header included
    int answeredRight = 0;      ///< entries answered right since the start
};

/// The first open entry at or behind `position`, going round at the end. A round that begins counts from 0
/// again; it tells `left` only while something is left. Error 9 where `status` has no such position.
[[nodiscard]] LoopPlace nextOpenPlace(int position, int roundPosition, const LoopSession& session);

} // namespace lingomat

#include "ByteView.h"

#include "JetError.h"

using namespace Qt::StringLiterals;

namespace jet {

void damaged(const QString& text) {
    throw Error(Problem::Damaged, text);
}

void outsideOfBytes() {
    damaged(u"A length or a place lies outside of its block."_s);
}

} // namespace jet

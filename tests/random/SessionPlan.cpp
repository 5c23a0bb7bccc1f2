#include "random/SessionPlan.h"

#include <QStringList>

namespace zelvor::random {

SessionPlan SessionPlan::OfEnvironment() {
    const QStringList words = qEnvironmentVariable("ZELVOR_RANDOM").split('\t');
    if (words.size() != 5) {
        return {};
    }
    return {words[0].toUInt(), words[1].toInt(), words[2], words[3], words[4]};
}

} // namespace zelvor::random

#include "platform/Display.h"

namespace zelvor {

// Every process has a display here. The toolkit's platform that needs none knows none of the system's fonts.
void DoWithoutDisplay() {}

} // namespace zelvor

#include "random/ResidentMemory.h"

#include <fstream>
#include <iostream>
#include <string>

namespace zelvor::random {

void TellResidentMemory() {
    std::ifstream file("/proc/self/status");
    for (std::string word; file >> word;) {
        if (word == "VmRSS:") {
            file >> word;
            std::cout << "memory " << word << std::endl;
            return;
        }
    }
}

} // namespace zelvor::random

// Another program, to see what a console or a pipe gives and takes.
//   words ...   writes each of its arguments in a line of standard output, and "信道" in one of standard error
//   wait        writes "ready", then waits until it is to stop, and writes "stopped"

#include <iostream>
#include <string>
#include <thread>
#include <vector>

#include "platform/Arguments.h"
#include "platform/StopRequest.h"
#include "platform/Terminal.h"

int main(int argc, char** argv) {
    using namespace std::chrono_literals;
    std::ios::sync_with_stdio(false);
    const zelvor::StandardOutput output;
    const std::vector<std::string> words = zelvor::ArgumentsOf(argc, argv);
    if (words.empty() || words.front() != "wait") {
        for (const std::string& word : words) {
            std::cout << word << '\n';
        }
        std::cerr << "信道\n" << (zelvor::IsStandardErrorTerminal() ? "terminal\n" : "");
        return 0;
    }
    zelvor::CatchStopRequests();
    std::cout << "ready\n" << std::flush;
    for (auto left = 30s / 10ms; left > 0 && !zelvor::IsStopRequested(); --left) {
        std::this_thread::sleep_for(10ms);
    }
    std::cout << (zelvor::IsStopRequested() ? "stopped\n" : "forgotten\n");
    return 0;
}

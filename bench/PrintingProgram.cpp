// zelvor-printing report|characters|empty english|chinese TIMES PDF [DATA-FILE]: prints the report of a radio, the
// report's characters alone or empty pages so many times, for who counts what that takes. First the report is printed
// once, which loads the font.

#include <QApplication>

#include "PrintRun.h"
#include "platform/DataFiles.h"
#include "platform/QtFileStore.h"
#include "platform/Toolkit.h"

int main(int argc, char** argv) {
    using namespace zelvor;
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 5) {
        return 2;
    }
    const QString& what = arguments[1];
    const Language language = arguments[2] == "chinese" ? Language::Chinese : Language::English;
    const QString& file = arguments[4];
    DataImage image = bench::FullDocument();
    if (arguments.size() > 5) {
        QtFileStore store;
        image = ReadDataFile(store, FromQString(arguments[5])).image;
    }
    const std::string characters = bench::CharactersOfReport(file, image, language);
    for (int time = 0; time < arguments[3].toInt(); ++time) {
        if (what == "report") {
            bench::PrintReport(file, image, language);
        } else {
            bench::PrintPages(file, what == "characters" ? characters : std::string());
        }
    }
    return 0;
}

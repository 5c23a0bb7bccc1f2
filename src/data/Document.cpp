#include "data/Document.h"

#include <filesystem>
#include <utility>

#include "data/MemoryMap.h"

namespace zelvor {

namespace {

// Where the platform's separator is the backslash, its interfaces and the toolkit's use the slash as well.
constexpr std::string_view Separators = std::filesystem::path::preferred_separator == '\\' ? "\\/" : "/";

} // namespace

void Document::ClearWriteFlags() {
    Priority.SetError(false);
    Flags.Clear();
}

bool Document::HasFile() const {
    return CurrentFileName.find_first_of(Separators) != std::string::npos;
}

std::string Document::BaseName() const {
    const std::size_t separator = CurrentFileName.find_last_of(Separators);
    return separator == std::string::npos ? CurrentFileName : CurrentFileName.substr(separator + 1);
}

void Document::Rename(std::string fileName) {
    CurrentFileName = std::move(fileName);
}

bool Document::IsDocumentChanged() {
    SavedImage.Set(address::PttIdType, Image.At(address::PttIdType));
    return Image != SavedImage;
}

} // namespace zelvor

#include "fakes/FakeFileDialogs.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <ostream>
#include <utility>

namespace zelvor {

namespace {

void MoveCurrentDirectoryTo(const std::string& file) {
    const auto folder = std::filesystem::path(std::u8string(file.begin(), file.end())).parent_path();
    std::error_code ignored;
    if (std::filesystem::is_directory(folder, ignored)) {
        std::filesystem::current_path(folder, ignored);
    }
}

std::string_view KindOf(bool isSave) {
    return isSave ? "save" : "open";
}

} // namespace

void PrintTo(const FileDialogRequest& request, std::ostream* out) {
    *out << "file name \"" << request.fileName << "\", filter \"" << request.filter << "\", directory \""
         << request.directory << "\"";
}

FakeFileDialogs::~FakeFileDialogs() {
    for (const Expectation& expectation : expected_) {
        ADD_FAILURE() << "A file dialog was never shown: " << KindOf(expectation.isSave) << ", "
                      << testing::PrintToString(expectation.request);
    }
}

std::optional<std::string> FakeFileDialogs::Open(const FileDialogRequest& request) {
    return Ask(false, request);
}

std::optional<std::string> FakeFileDialogs::Save(const FileDialogRequest& request) {
    return Ask(true, request);
}

void FakeFileDialogs::ExpectOpen(FileDialogRequest request, std::optional<std::string> answer) {
    expected_.push_back({false, std::move(request), std::move(answer)});
}

void FakeFileDialogs::ExpectSave(FileDialogRequest request, std::optional<std::string> answer) {
    expected_.push_back({true, std::move(request), std::move(answer)});
}

std::optional<std::string> FakeFileDialogs::Ask(bool isSave, const FileDialogRequest& request) {
    if (expected_.empty()) {
        ADD_FAILURE() << "A file dialog was not expected: " << KindOf(isSave) << ", "
                      << testing::PrintToString(request);
        return std::nullopt;
    }
    const Expectation expectation = std::move(expected_.front());
    expected_.pop_front();
    if (expectation.isSave != isSave || !(expectation.request == request)) {
        ADD_FAILURE() << "A file dialog was not the expected one\n  shown:    " << KindOf(isSave) << ", "
                      << testing::PrintToString(request) << "\n  expected: " << KindOf(expectation.isSave) << ", "
                      << testing::PrintToString(expectation.request);
        return std::nullopt;
    }
    if (expectation.answer) {
        MoveCurrentDirectoryTo(*expectation.answer);
    }
    return expectation.answer;
}

} // namespace zelvor

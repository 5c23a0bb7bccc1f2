#include <cwchar>
#include <string>
#include <windows.h>

#include "platform/QtSettingsStore.h"
#include "text/Utf8.h"

namespace zelvor {

namespace {

// Not the toolkit's settings class: it makes a key that it only looks at, and the next run would be no first one.

constexpr auto ProgramKey = L"SoftWare\\Zelvor";
constexpr auto EntriesKey = L"SoftWare\\Zelvor\\BackUp";

std::wstring WideOf(std::string_view text) {
    const std::u16string utf16 = Utf16Of(text);
    return {utf16.begin(), utf16.end()};
}

/// With room for the zero at its end.
DWORD SizeOf(const std::wstring& text) {
    return static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
}

} // namespace

bool QtSettingsStore::Exists() {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, ProgramKey, 0, KEY_READ, &key) != ERROR_SUCCESS) {
        return false;
    }
    RegCloseKey(key);
    return true;
}

void QtSettingsStore::Create() {
    HKEY key = nullptr;
    if (RegCreateKeyExW(HKEY_CURRENT_USER, EntriesKey, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_WRITE, nullptr, &key,
                        nullptr) == ERROR_SUCCESS) {
        RegCloseKey(key);
    }
}

std::string QtSettingsStore::Read(std::string_view entry) {
    constexpr std::size_t Longest = 32767; // what the system advises for a value
    const std::wstring name = WideOf(entry);
    std::wstring text(Longest, L'\0');
    DWORD size = SizeOf(text);
    if (RegGetValueW(HKEY_CURRENT_USER, EntriesKey, name.c_str(), RRF_RT_REG_SZ, nullptr, text.data(), &size) !=
        ERROR_SUCCESS) {
        return {};
    }
    text.resize(std::wcslen(text.c_str()));
    return Utf8Of(std::u16string(text.begin(), text.end()));
}

void QtSettingsStore::Write(std::string_view entry, std::string_view value) {
    const std::wstring name = WideOf(entry);
    const std::wstring text = WideOf(value);
    RegSetKeyValueW(HKEY_CURRENT_USER, EntriesKey, name.c_str(), REG_SZ, text.c_str(), SizeOf(text));
}

} // namespace zelvor

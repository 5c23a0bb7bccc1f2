// The settings as other programs find them in the registry of Windows.

#include <cwchar>
#include <gtest/gtest.h>
#include <string>
#include <vector>
#include <windows.h>

#include "platform/QtSettingsStore.h"

namespace zelvor {
namespace {

/// A registry of the test's own in place of the user's, gone with it.
class RegistrySettingsTest : public testing::Test {
protected:
    RegistrySettingsTest() {
        EXPECT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, name_.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS,
                                  nullptr, &key_, nullptr),
                  ERROR_SUCCESS);
        EXPECT_EQ(RegOverridePredefKey(HKEY_CURRENT_USER, key_), ERROR_SUCCESS);
    }
    ~RegistrySettingsTest() override {
        RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
        RegCloseKey(key_);
        RegDeleteTreeW(HKEY_CURRENT_USER, name_.c_str());
    }

    /// Kind and bytes of a value; kind 0 where there is none.
    struct Value {
        DWORD kind = 0;
        std::vector<wchar_t> text;
    };
    static Value ValueOf(const wchar_t* key, const wchar_t* name) {
        Value value{.kind = 0, .text = std::vector<wchar_t>(100)};
        auto size = static_cast<DWORD>(value.text.size() * sizeof(wchar_t));
        if (RegGetValueW(HKEY_CURRENT_USER, key, name, RRF_RT_ANY | RRF_NOEXPAND, &value.kind, value.text.data(),
                         &size) != ERROR_SUCCESS) {
            return {};
        }
        value.text.resize(size / sizeof(wchar_t));
        return value;
    }
    static bool HasKey(const wchar_t* name) {
        HKEY key = nullptr;
        const bool isThere = RegOpenKeyExW(HKEY_CURRENT_USER, name, 0, KEY_READ, &key) == ERROR_SUCCESS;
        RegCloseKey(key);
        return isThere;
    }
    static void Put(const wchar_t* name, const wchar_t* text) {
        HKEY key = nullptr;
        ASSERT_EQ(RegCreateKeyW(HKEY_CURRENT_USER, L"SoftWare\\Zelvor\\BackUp", &key), ERROR_SUCCESS);
        RegSetValueExW(key, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text),
                       static_cast<DWORD>((std::wcslen(text) + 1) * sizeof(wchar_t)));
        RegCloseKey(key);
    }

    QtSettingsStore store_;

private:
    std::wstring name_ = L"Software\\ZelvorRegistryTest" + std::to_wstring(GetCurrentProcessId());
    HKEY key_ = nullptr;
};

std::vector<wchar_t> WithEnd(const wchar_t* text) {
    return {text, text + std::wcslen(text) + 1};
}

TEST_F(RegistrySettingsTest, AreStringsInTheProgramsKey) {
    store_.Write(LastModelEntry, "50:34:36:31:38:01:F8:FF");
    store_.Write(LanguageEntry, "1");
    const Value model = ValueOf(L"SoftWare\\Zelvor\\BackUp", L"LastModel");
    EXPECT_EQ(model.kind, DWORD(REG_SZ));
    EXPECT_EQ(model.text, WithEnd(L"50:34:36:31:38:01:F8:FF"));
    EXPECT_EQ(model.text.size(), 24U);
    const Value language = ValueOf(L"SOFTWARE\\ZELVOR\\BACKUP", L"LANGUAGE");
    EXPECT_EQ(language.kind, DWORD(REG_SZ));
    EXPECT_EQ(language.text, WithEnd(L"1"));
}

TEST_F(RegistrySettingsTest, AreNotThereBeforeTheFirstRunAndMadeWithoutValues) {
    EXPECT_FALSE(store_.Exists());
    EXPECT_EQ(store_.Read(LastModelEntry), "");
    EXPECT_FALSE(HasKey(L"SoftWare\\Zelvor"));
    store_.Create();
    EXPECT_TRUE(HasKey(L"SoftWare\\Zelvor\\BackUp"));
    EXPECT_EQ(ValueOf(L"SoftWare\\Zelvor\\BackUp", L"LastModel").kind, 0U);
    EXPECT_TRUE(store_.Exists());
}

TEST_F(RegistrySettingsTest, ExistWithTheOuterKeyAlone) {
    HKEY key = nullptr;
    ASSERT_EQ(RegCreateKeyW(HKEY_CURRENT_USER, L"SoftWare\\Zelvor", &key), ERROR_SUCCESS);
    RegCloseKey(key);
    EXPECT_TRUE(store_.Exists());
    EXPECT_EQ(store_.Read(LanguageEntry), "");
    store_.Write(LanguageEntry, "0");
    EXPECT_EQ(ValueOf(L"SoftWare\\Zelvor\\BackUp", L"Language").text, WithEnd(L"0"));
}

TEST_F(RegistrySettingsTest, AreReadAsAnotherProgramWroteThem) {
    Put(L"LastModel", L"50:34:36:31:38:01:F5:FF");
    Put(L"Language", L"1");
    EXPECT_EQ(store_.Read(LastModelEntry), "50:34:36:31:38:01:F5:FF");
    EXPECT_EQ(store_.Read(LanguageEntry), "1");
    Put(L"Language", L"0");
    EXPECT_EQ(store_.Read(LanguageEntry), "0");
    store_.Create();
    EXPECT_EQ(store_.Read(LastModelEntry), "50:34:36:31:38:01:F5:FF");
}

} // namespace
} // namespace zelvor

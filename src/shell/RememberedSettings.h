#pragma once

#include "text/Language.h"

namespace zelvor {

class DataImage;
class SettingsStore;

/// Sets market and family of the image as an earlier run left them. On the first run, and where the stored text cannot
/// be read as an identity, they are those of the default model; the first run also stores it.
void RestoreModel(DataImage& image, SettingsStore& settings);

/// The language as an earlier run left it. On the first run it is English, and stored.
[[nodiscard]] Language RestoreLanguage(SettingsStore& settings);

/// Stores the model of the document and the language. Called only at the end of the program.
void StoreSettings(const DataImage& image, Language language, SettingsStore& settings);

} // namespace zelvor

#pragma once

namespace zelvor {

class Session;
class SettingsStore;

/// Sets market and family of the image as an earlier run left them. On the first run, and where the stored text cannot
/// be read as an identity, they are those of the default model; the first run also stores it.
void RestoreModel(Session& session, SettingsStore& settings);

/// Sets the language as an earlier run left it.
void RestoreLanguage(Session& session, SettingsStore& settings);

/// Stores the model of the document and the language. Called only at the end of the program.
void StoreSettings(const Session& session, SettingsStore& settings);

} // namespace zelvor

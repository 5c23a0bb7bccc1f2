#include "shell/RememberedSettings.h"

#include "data/MemoryMap.h"
#include "data/ModelCatalogue.h"
#include "data/Session.h"
#include "platform/SettingsStore.h"
#include "text/Decimal.h"

namespace zelvor {

namespace {

void CreateIfMissing(SettingsStore& settings) {
    if (!settings.Exists()) {
        settings.Create();
    }
}

} // namespace

void RestoreModel(Session& session, SettingsStore& settings) {
    FamilyAndMarket model{DefaultIdentity[6], DefaultIdentity[5]};
    if (settings.Exists()) {
        model = ParseIdentityText(settings.Read(LastModelEntry)).value_or(model);
    } else {
        settings.Create();
        settings.Write(LastModelEntry, IdentityToText(DefaultIdentity));
    }
    session.Image.Set(address::Market, model.market);
    session.Image.Set(address::Family, model.family);
}

void RestoreLanguage(Session& session, SettingsStore& settings) {
    if (!settings.Exists()) {
        settings.Create();
        settings.Write(LanguageEntry, "0");
    }
    const bool isChinese = !Decimal::Leading(settings.Read(LanguageEntry)).IsZero();
    session.LanguageFlag = isChinese ? Language::Chinese : Language::English;
}

void StoreSettings(const Session& session, SettingsStore& settings) {
    CreateIfMissing(settings);
    settings.Write(LastModelEntry, IdentityToText(IdentityOf(session.Image)));
    CreateIfMissing(settings);
    settings.Write(LanguageEntry, session.LanguageFlag == Language::Chinese ? "1" : "0");
}

} // namespace zelvor

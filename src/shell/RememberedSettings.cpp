#include "shell/RememberedSettings.h"

#include "data/DataImage.h"
#include "data/MemoryMap.h"
#include "data/ModelCatalogue.h"
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

void RestoreModel(DataImage& image, SettingsStore& settings) {
    FamilyAndMarket model{DefaultIdentity[6], DefaultIdentity[5]};
    if (settings.Exists()) {
        model = ParseIdentityText(settings.Read(LastModelEntry)).value_or(model);
    } else {
        settings.Create();
        settings.Write(LastModelEntry, IdentityToText(DefaultIdentity));
    }
    image.Set(address::Market, model.market);
    image.Set(address::Family, model.family);
}

Language RestoreLanguage(SettingsStore& settings) {
    if (!settings.Exists()) {
        settings.Create();
        settings.Write(LanguageEntry, "0");
    }
    const bool isChinese = !Decimal::Leading(settings.Read(LanguageEntry)).IsZero();
    return isChinese ? Language::Chinese : Language::English;
}

void StoreSettings(const DataImage& image, Language language, SettingsStore& settings) {
    CreateIfMissing(settings);
    settings.Write(LastModelEntry, IdentityToText(IdentityOf(image)));
    CreateIfMissing(settings);
    settings.Write(LanguageEntry, language == Language::Chinese ? "1" : "0");
}

} // namespace zelvor

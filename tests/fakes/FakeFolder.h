#pragma once

#include <functional>
#include <string>

#include "fakes/FakeFileStore.h"
#include "platform/Folder.h"

namespace zelvor {

/// "/backups": those of the fake files whose path says so. Held by one at a time; a second Hold() is null.
class FakeFolder : public Folder {
public:
    explicit FakeFolder(FakeFileStore& store) : store_(store) {}

    [[nodiscard]] std::string Path() const override { return "/backups"; }
    [[nodiscard]] std::string PathOf(const std::string& name) const override { return Path() + '/' + name; }
    [[nodiscard]] std::vector<std::string> FileNames() override {
        return store_.NamesIn(Path()).value_or(std::vector<std::string>());
    }
    void Remove(const std::string& name) override { store_.Remove(PathOf(name)); }
    [[nodiscard]] std::shared_ptr<void> Hold() override;

    /// From now on it can be neither made nor changed.
    void Refuse() { isRefused_ = true; }
    [[nodiscard]] bool IsHeld() const { return !holder_.expired(); }

    /// Called by every Hold(), before it is answered.
    std::function<void()> OnHold;

private:
    FakeFileStore& store_;
    std::weak_ptr<void> holder_;
    bool isRefused_ = false;
};

} // namespace zelvor

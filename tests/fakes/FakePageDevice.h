#pragma once

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "platform/PageDevice.h"

namespace zelvor {

struct FakePageText {
    double x = 0;
    double y = 0;
    std::string text;
    std::string family;
    double pointSize = 10;
    bool bold = false;
    double stretch = 1;
};

struct FakePageLine {
    double x1 = 0;
    double y1 = 0;
    double x2 = 0;
    double y2 = 0;

    bool operator==(const FakePageLine&) const = default;
};

struct FakePage {
    std::vector<FakePageText> texts;
    std::vector<FakePageLine> lines;
};

/// A printer that keeps its pages, and tells everything at once unless told otherwise. Every character is 10 twips wide
/// and 24 twips high to the point of size: 100 and 240 at 10 points. Drawing outside of a document, and a set-up dialog
/// that was not expected or never shown, fail the test.
class FakePageDevice : public PageDevice {
public:
    FakePageDevice() = default;
    FakePageDevice(const FakePageDevice&) = delete;
    FakePageDevice& operator=(const FakePageDevice&) = delete;
    ~FakePageDevice() override;

    void FindTarget(std::function<void(const PageTarget& target)> found) override;
    void AskForPrinters(std::function<void(bool isAnswered)> told) override;
    [[nodiscard]] bool ShowSetup(std::string_view documentFile) override;
    [[nodiscard]] bool BeginDocument(std::string_view name) override;
    [[nodiscard]] bool NewPage() override;
    void EndDocument() override;
    [[nodiscard]] double PageWidth() const override;
    [[nodiscard]] double PageHeight() const override;
    void SetFont(const PageFont& font) override;
    [[nodiscard]] double TextWidth(std::string_view text) const override;
    [[nodiscard]] double TextHeight() const override;
    void DrawText(double x, double y, std::string_view text) override;
    void DrawLine(double x1, double y1, double x2, double y2) override;

    /// Where documents go; a printer named "Office" at first. Without a printer none can be begun.
    void SetTarget(PageTarget target) { target_ = std::move(target); }
    void SetAvailable(bool isAvailable);
    /// From now on nothing is told before Answer.
    void HoldAnswers() { isHolding_ = true; }
    /// Tells all that was asked meanwhile.
    void Answer();
    /// In twips; 10800 by 15840 unless told otherwise.
    void SetPageSize(double width, double height);
    /// The printer fails where page n of a document is to begin; 1: no document can be begun.
    void FailAtPage(int n) { failingPage_ = n; }
    void ExpectSetup(bool answer) { setups_.push_back(answer); }
    /// The set-up dialog is accepted with that target.
    void ExpectSetup(PageTarget chosen) { setups_.push_back(std::move(chosen)); }

    /// How often a FailAtPage has struck.
    [[nodiscard]] int Failures() const { return failures_; }
    /// The document file of each set-up dialog.
    [[nodiscard]] const std::vector<std::string>& SetupDocuments() const { return setupDocuments_; }
    /// The names of the documents sent off.
    [[nodiscard]] const std::vector<std::string>& Documents() const { return documents_; }
    /// The pages of all documents so far, in order, also of one that is not sent off yet.
    [[nodiscard]] const std::vector<FakePage>& Pages() const { return pages_; }

private:
    void CheckInDocument() const;
    [[nodiscard]] bool BeginPage();

    void Tell(std::function<void()> tell);

    PageTarget target_{PageTarget::Kind::Printer, "Office"};
    bool isHolding_ = false;
    std::vector<std::function<void()>> held_;
    bool isInDocument_ = false;
    double width_ = 10800;
    double height_ = 15840;
    std::string name_;
    std::string family_;
    double pointSize_ = 10;
    bool bold_ = false;
    double stretch_ = 1;
    int failingPage_ = 0; // none
    int failures_ = 0;
    int page_ = 0; // of the document
    std::deque<std::variant<bool, PageTarget>> setups_;
    std::vector<std::string> setupDocuments_;
    std::vector<std::string> documents_;
    std::vector<FakePage> pages_;
};

} // namespace zelvor

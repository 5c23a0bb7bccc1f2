#include "fakes/FakePageDevice.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace zelvor {

namespace {

constexpr double CharacterWidthPerPoint = 10; // twips
constexpr double LineHeightPerPoint = 24;

// In UTF-8 every character has one byte that is no continuation byte.
auto CharacterCount(std::string_view text) {
    return std::ranges::count_if(text, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; });
}

} // namespace

FakePageDevice::~FakePageDevice() {
    if (!setups_.empty()) {
        ADD_FAILURE() << "The printer's set-up dialog was never shown";
    }
}

void FakePageDevice::FindTarget(std::function<void(const PageTarget& target)> found) {
    Tell([this, found = std::move(found)] { found(PageTarget(target_)); });
}

void FakePageDevice::AskForPrinters(std::function<void(bool isAnswered)> told) {
    Tell([this, told = std::move(told)] { told(target_.kind != PageTarget::Kind::NoAnswer); });
}

void FakePageDevice::Tell(std::function<void()> tell) {
    if (isHolding_) {
        held_.push_back(std::move(tell));
    } else {
        tell();
    }
}

void FakePageDevice::Answer() {
    isHolding_ = false;
    for (const auto& tell : std::exchange(held_, {})) {
        tell();
    }
}

void FakePageDevice::SetAvailable(bool isAvailable) {
    target_ = isAvailable ? PageTarget{PageTarget::Kind::Printer, "Office"} : PageTarget{};
}

bool FakePageDevice::ShowSetup(std::string_view documentFile) {
    setupDocuments_.emplace_back(documentFile);
    if (setups_.empty()) {
        ADD_FAILURE() << "The printer's set-up dialog was not expected";
        return false;
    }
    const auto answer = std::move(setups_.front());
    setups_.pop_front();
    if (const auto* chosen = std::get_if<PageTarget>(&answer)) {
        target_ = *chosen;
        return true;
    }
    return std::get<bool>(answer);
}

bool FakePageDevice::BeginDocument(std::string_view name) {
    EXPECT_FALSE(isInDocument_) << "A document was begun within another";
    if (target_.kind != PageTarget::Kind::Printer && target_.kind != PageTarget::Kind::File) {
        return false;
    }
    isInDocument_ = true;
    name_ = name;
    page_ = 0;
    SetFont({});
    return BeginPage();
}

bool FakePageDevice::NewPage() {
    CheckInDocument();
    return BeginPage();
}

bool FakePageDevice::BeginPage() {
    if (++page_ == failingPage_) {
        ++failures_;
        isInDocument_ = false;
        return false;
    }
    pages_.emplace_back();
    return true;
}

void FakePageDevice::EndDocument() {
    CheckInDocument();
    isInDocument_ = false;
    documents_.push_back(name_);
}

double FakePageDevice::PageWidth() const {
    CheckInDocument();
    return width_;
}

double FakePageDevice::PageHeight() const {
    CheckInDocument();
    return height_;
}

void FakePageDevice::SetFont(const PageFont& font) {
    CheckInDocument();
    family_ = font.family;
    pointSize_ = font.pointSize;
    bold_ = font.bold;
    stretch_ = font.stretch;
}

double FakePageDevice::TextWidth(std::string_view text) const {
    CheckInDocument();
    return static_cast<double>(CharacterCount(text)) * pointSize_ * CharacterWidthPerPoint * stretch_;
}

double FakePageDevice::TextHeight() const {
    CheckInDocument();
    return pointSize_ * LineHeightPerPoint;
}

void FakePageDevice::DrawText(double x, double y, std::string_view text) {
    CheckInDocument();
    if (!pages_.empty()) {
        pages_.back().texts.push_back({x, y, std::string(text), family_, pointSize_, bold_, stretch_});
    }
}

void FakePageDevice::DrawLine(double x1, double y1, double x2, double y2) {
    CheckInDocument();
    if (!pages_.empty()) {
        pages_.back().lines.push_back({x1, y1, x2, y2});
    }
}

void FakePageDevice::SetPageSize(double width, double height) {
    width_ = width;
    height_ = height;
}

void FakePageDevice::CheckInDocument() const {
    EXPECT_TRUE(isInDocument_) << "The page device was used outside of a document";
}

} // namespace zelvor

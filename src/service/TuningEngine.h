#pragma once

#include <cstdint>
#include <vector>

#include "service/CommandExchange.h"
#include "service/ServiceState.h"

namespace zelvor {

/// What a tuning dialog adjusts: pages with linked values, one value, or a value that the radio measures.
enum class TuningKind { Points, Single, Measured };

struct TuningPlan {
    TuningKind kind = TuningKind::Single;
    std::uint8_t itemCode = 0;
    std::vector<std::uint8_t> pointCodes; // one a page; the item's own code where there is one value
};

/// What a tuning dialog tells its engine.
class TuningSource {
public:
    virtual ~TuningSource() = default;
    /// 0 to 255: of a page as it is now, and as the radio held it when the dialog opened.
    [[nodiscard]] virtual int Value(int page) const = 0;
    [[nodiscard]] virtual int OldValue(int page) const = 0;
};

/// What the owner of a TuningEngine is told.
class TuningObserver {
public:
    virtual ~TuningObserver() = default;
    virtual void OnLamp(bool transmitting) = 0;
    /// The radio has gone to the page's point: its controls are to be refreshed.
    virtual void OnPointRead(int page) = 0;
    virtual void OnMeasured(int value) = 0;
    /// The user has given up at the connection prompt: the dialog is to be closed.
    virtual void OnUnloadRequested() = 0;
    /// What Close() has begun is done: the radio has the values, or is given up, and the port is closed.
    virtual void OnClosed() = 0;
};

/// The tuning of one item on the live radio, without a window. Of values of one page, and of pages, the latest gets to
/// the radio; OK comes behind them, Cancel at once.
class TuningEngine : public CommandExchange {
public:
    TuningEngine(ServiceState& service, const RadioLink& link, TuningPlan plan, TuningSource& source,
                 TuningObserver& observer);

    /// The dialog loads; nothing is sent.
    void Load();

    /// The page comes to the front. A keyed transmitter is dropped first.
    void ChangePage(int page);
    /// The value of the page in front was changed by its slider or by its text; the latest one gets to the radio.
    void SliderMoved() { SendValue(); }
    void TextChanged() { SendValue(); }
    /// Starts or ends the measuring.
    void ToggleMeasuring();
    [[nodiscard]] bool IsMeasuring() const { return measuring_; }

    enum class Ending { Ok, Cancel };
    /// Stores the value, or brings the old values back: no command is taken any more, and OnClosed follows when the
    /// radio has it; at once where the user has given up. Calls meanwhile do nothing.
    void Close(Ending ending);

private:
    /// Values of TuneOp, the kind of a command. Its argument is the page.
    enum : std::uint8_t { TunePage, TuneValue, TuneOk = 4, TuneCancel, TuneMeasure };

    void SendValue();
    [[nodiscard]] int TuneOp() const { return Current().kind; }
    [[nodiscard]] std::uint8_t Code(int page) const { return plan_.pointCodes[static_cast<std::size_t>(page)]; }
    [[nodiscard]] int Pages() const { return static_cast<int>(plan_.pointCodes.size()); }
    [[nodiscard]] int LastCancelState() const;

    [[nodiscard]] bool Replaces(const RadioCommand& later, const RadioCommand& earlier) const override;
    [[nodiscard]] bool DropsPtt(const RadioCommand& command) const override;
    [[nodiscard]] int IntervalBehindDrop() const override;

    void SendStep() override;
    void SendPageCommand();
    void SendEnding();
    void SendRestoring();
    void SendMeasuredEnding();
    void SendSet(int page, int value);
    void ReceiveStep() override;
    void OnKeyed(bool keyed) override { observer_.OnLamp(keyed); }
    void ReceivePageReply();
    void ReceiveMeasurement();
    void ReceiveEnding();
    void Leave();
    void GiveUp() override;
    [[nodiscard]] bool EndsAtTimeout() override { return service_.TestAborted; }

    ServiceState& service_;
    const TuningPlan plan_;
    TuningSource& source_;
    TuningObserver& observer_;
    int CurrentPage = 0;
    bool measuring_ = false;
};

} // namespace zelvor

#pragma once

#include <QDialog>
#include <memory>
#include <optional>
#include <vector>

#include "platform/SerialPort.h"
#include "service/FrequencyPoints.h"
#include "service/LinkedValues.h"
#include "service/TuningDialogs.h"
#include "service/TuningEngine.h"
#include "text/Language.h"
#include "text/Text.h"

class QHBoxLayout;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QTabWidget;

namespace zelvor {

class Lamp;
class TuningPage;
class Document;
struct Services;

/// The four tuning dialogs: one design in four sizes. Adjusts one item on the live radio; its values go to the radio
/// only. Closing by the frame is Cancel.
class TuningForm : public QDialog, private TuningObserver, private TuningSource {
    Q_OBJECT

public:
    TuningForm(const Document& document, LinkState& link, ServiceState& service, Language language, Services& services,
               const TuningDialog& dialog, QWidget* parent = nullptr);
    ~TuningForm() override;

    /// Escape: the same as CmdCancel.
    void reject() override { close(); }

signals:
    /// The window is gone, whichever way it was closed.
    void Unloaded();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void OnLamp(bool transmitting) override;
    void OnPointRead(int page) override;
    void OnMeasured(int value) override;
    void OnUnloadRequested() override;
    void OnClosed() override;
    [[nodiscard]] int Value(int page) const override;
    [[nodiscard]] int OldValue(int page) const override;

    [[nodiscard]] QString LoadText(Text name) const;
    void BuildPages(const TuningDialog& dialog);
    void AddPage(TunePoint point, int index);
    void BuildMeasure();
    [[nodiscard]] QHBoxLayout* BuildButtons();
    QPushButton* AddButton(QHBoxLayout& row, const char* name, const QString& text);
    void AddPtt(QHBoxLayout& row);
    void AddStart(QHBoxLayout& row);
    [[nodiscard]] PointFrequency FrequencyAt(TunePoint point) const;
    void LoadValues(const TuningDialog& dialog);
    [[nodiscard]] QString FrequencyText(TunePoint point, bool transmit) const;

    enum class Source { Slider, Text };
    void Change(int page, int value, Source source);
    void ShowValues();
    void OnPageChanged(int page);
    void EnableSlider(int page);

    const Document& document_;
    ServiceState& service_;
    const Language language_;
    Services& services_;
    const TuningKind kind_;
    std::optional<FrequencyPoints> frequencies_;
    std::optional<LinkedValues> values_;
    std::unique_ptr<SerialPort> port_; // MSComm1
    TuningEngine engine_;
    TuningEngine::Ending ending_ = TuningEngine::Ending::Cancel;
    QTabWidget* SSTabTune_ = nullptr;
    std::vector<TuningPage*> pages_;
    QLineEdit* txtTuneValue_ = nullptr; // of the measuring dialog
    QProgressBar* PrgValue_ = nullptr;
    Lamp* PicStart_ = nullptr;
    Lamp* PicPtt_ = nullptr;
    bool unloaded_ = false;
};

/// The dialog of the service mode's TuneItem and NarrowMode.
[[nodiscard]] TuningForm* MakeTuningForm(const Document& document, LinkState& link, ServiceState& service,
                                         Language language, Services& services, QWidget* parent);

} // namespace zelvor

#pragma once

#include <QDialog>
#include <memory>

#include "controls/WindowBlock.h"
#include "platform/SerialPort.h"
#include "service/TestEngine.h"
#include "text/Language.h"
#include "text/Text.h"

class QHBoxLayout;
class QListWidget;
class QPushButton;

namespace zelvor {

class Lamp;
class TestFrame;
class Document;
struct Services;

/// Test mode: puts the radio on a test channel with a test signalling, keys it, and opens the tuning dialogs. Keeps the
/// radio in the mode until it is closed; the main window is disabled meanwhile.
class TestForm : public QDialog, private TestObserver {
    Q_OBJECT

public:
    TestForm(Document& document, LinkState& link, ServiceState& service, Language language, Services& services,
             QWidget* parent = nullptr);
    ~TestForm() override;

    [[nodiscard]] const TestEngine& Engine() const { return engine_; }

    /// Escape: the same as cmdClose.
    void reject() override { close(); }

signals:
    void Activated();
    /// The window is gone, whichever way it was closed.
    void Unloaded();

protected:
    void changeEvent(QEvent* event) override;
    /// Refused while a tuning dialog is open, and until the radio has been told.
    void closeEvent(QCloseEvent* event) override;

private:
    void OnLamps(bool transmitting) override;
    void OnTuningReady() override;
    void OnUnloadRequested() override;
    void OnClosed() override;

    [[nodiscard]] QString LoadText(Text name) const;
    void BuildFrames();
    void BuildItemList();
    [[nodiscard]] QHBoxLayout* BuildRadioButtons();
    [[nodiscard]] QHBoxLayout* BuildWindowButtons();
    QPushButton* AddButton(QHBoxLayout& row, const char* name, const QString& text);

    void Print();
    void LoadChannels();
    void ShowChannel();
    void ShowSignalling(int number);
    void OnChannelChosen(int index);
    void OnSignallingChosen(int index);
    void OnItemChosen();
    void KeepItemChosen();
    void OnWidthPressed(bool wide);

    Document& document_;
    LinkState& link_;
    ServiceState& service_;
    const Language language_;
    Services& services_;
    std::unique_ptr<SerialPort> port_; // MSComm1
    TestEngine engine_;
    TestFrame* frmTestChannel_ = nullptr;
    TestFrame* frmTestSignal_ = nullptr;
    Lamp* PicPtt_ = nullptr;
    Lamp* PicWide_ = nullptr;
    Lamp* PicNarrow_ = nullptr;
    QListWidget* LvwTuneSel_ = nullptr;
    WindowBlock block_{*this}; // while a tuning dialog is open
    QPushButton* CmdTune_ = nullptr;
    bool offersChannels_ = false;
    bool tuning_ = false;
    std::weak_ptr<bool> printing_; // lives while a report is under way
    bool leaving_ = false;         // the radio is being told, or was
    bool unloaded_ = false;
};

} // namespace zelvor

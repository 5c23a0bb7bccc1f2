#include "random/EntryFields.h"

#include <utility>

namespace zelvor::random {

namespace {

using Form = EntryForm;
using Conditions = std::vector<EntryField::Condition>;

constexpr EntryWindow Optional{"MnuEditOptionalFeatures", "OptionalForm"};
constexpr EntryWindow Keys{"MnuEditKeyAssignment", "KeyAssign"};
constexpr EntryWindow Scan{"MnuEditScanInformation", "ScanForm"};
constexpr EntryWindow Encode{"MnuEditDTMF", "DTMFForm", 1};
constexpr EntryWindow Decode{"MnuEditDTMF", "DTMFForm", 2};
constexpr EntryWindow Autodial{"MnuEditDTMF", "DTMFForm", 3};
constexpr EntryWindow Corvane{"MnuEditCorvane", "CorvaneForm", 1};
constexpr EntryWindow Message{"MnuEditEmbeddedMessage", "EmbedInfoForm"};

const QString Digits = "0123456789";
const QString DtmfDigits = Digits + "ABCD*#";
const QString Letters = "ABCXYZabcxyz0189.-+/";

constexpr int Unused = 0xFF;
constexpr int Blank = 0x20;

const EntryField::Condition VoxIsOn{0x139, false, {0}};
const EntryField::Condition IsDtmf{0x133, true, {0}};
const EntryField::Condition ScramblerIsOff{0x12C, true, {0}};
const EntryField::Condition HasStunCode{0x1F0, false, {0xFF}};

/// How a number is typed and stored.
struct Way {
    int factor = 1;
    int offset = 0;
    const char* unit = "";
    int size = 1;
};

EntryField Number(EntryWindow window, const char* control, int address, int from, int to, Way way = {},
                  Conditions conditions = {}) {
    return {.window = window,
            .control = control,
            .address = address,
            .form = Form::Number,
            .from = from,
            .to = to,
            .factor = way.factor,
            .offset = way.offset,
            .unit = way.unit,
            .size = way.size,
            .conditions = std::move(conditions)};
}

/// In steps of 0.05 from 0.50.
EntryField LookBackTime(const char* control, int address) {
    EntryField field = Number(Scan, control, address, 1, 91, {.factor = 5, .offset = 45});
    field.form = Form::Hundredths;
    return field;
}

EntryField Choice(EntryWindow window, const char* control, int address, std::vector<int> values) {
    return {
        .window = window, .control = control, .address = address, .form = Form::Choice, .values = std::move(values)};
}

EntryField List(EntryWindow window, const char* control, int address, std::vector<int> bytes,
                Conditions conditions = {}) {
    return {.window = window,
            .control = control,
            .address = address,
            .form = Form::List,
            .values = std::move(bytes),
            .conditions = std::move(conditions)};
}

EntryField Check(EntryWindow window, const char* control, int address, Conditions conditions = {}) {
    return {.window = window,
            .control = control,
            .address = address,
            .form = Form::Check,
            .conditions = std::move(conditions)};
}

struct Length {
    int from;
    int to;
    int size;
};

EntryField Code(EntryWindow window, const char* control, int address, Length length, const QString& characters,
                int padding, Conditions conditions = {}) {
    return {.window = window,
            .control = control,
            .address = address,
            .form = Form::Code,
            .from = length.from,
            .to = length.to,
            .size = length.size,
            .characters = characters,
            .padding = padding,
            .conditions = std::move(conditions)};
}

EntryField Memory(int number) {
    constexpr int size = 16;
    EntryField field = Code(Autodial, "msgAutodial", 0x200 + size * (number - 1), {1, size, size}, DtmfDigits, Blank);
    field.form = Form::Cell;
    field.row = number;
    return field;
}

std::vector<EntryField> All() {
    const std::vector<int> functions{0xFF, 0, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
    const std::vector<int> milliseconds{0, 100, 500, 1000};
    const int keeps = EntryField::KeepsTail;
    std::vector<EntryField> fields{
        Number(Optional, "txtTOT", 0x130, 1, 40, {.factor = 15}),
        Number(Optional, "txtTOTPreAlert", 0x131, 1, 10),
        Number(Optional, "txtSQLevel", 0x134, 0, 9),
        List(Optional, "cboMICSens", 0x13D, {0, 1}),
        List(Optional, "cboVoiceAnnu", 0x12F, {0, 2, 1}),
        Check(Optional, "chkBattSave", 0x135),
        Check(Optional, "chkBeep", 0x136),
        Check(Optional, "chkScramblerAct", 0x12C),
        Check(Optional, "chkScramblerBackup", 0x12D, {ScramblerIsOff}),
        List(Optional, "cboPTTIDType", 0x133, {0, 1}),
        List(Optional, "cboPTTID", 0x132, {0, 1, 2}),
        Code(Optional, "txtPTTCode(0)", 0x140, {1, 16, 16}, DtmfDigits, keeps, {IsDtmf, {0x132, true, {0, 2}}}),
        Code(Optional, "txtPTTCode(1)", 0x150, {1, 16, 16}, DtmfDigits, keeps, {IsDtmf, {0x132, true, {1, 2}}}),
        Check(Optional, "chkVOXFunc", 0x139),
        Number(Optional, "txtVOXGainLevel", 0x13A, 1, 10, {}, {VoxIsOn}),
        List(Optional, "cboVOXDelayTime", 0x13B, {0, 1, 2, 3, 4, 5}, {VoxIsOn}),
        Check(Optional, "chkCancel", 0x137, {VoxIsOn}),
        Check(Optional, "chkVOXProceedTone", 0x13C, {VoxIsOn}),
        Check(Optional, "chkVOXInhibit", 0x138, {VoxIsOn}),
        Check(Optional, "chkCloneMode", 0x13E),

        List(Keys, "cboKey(0)", 0x11D, functions),
        List(Keys, "cboKey(1)", 0x11E, functions),

        Number(Scan, "txtPriorityCH", 0x161, 1, 16),
        LookBackTime("txtLookBackTimeA", 0x162),
        LookBackTime("txtLookBackTimeB", 0x163),
        List(Scan, "cboRevertCH", 0x164, {0, 1, 2, 3}),
        Number(Scan, "txtDropoutDelayTime", 0x165, 0, 300, {.size = 2}),
        Number(Scan, "txtTXDwellTime", 0x167, 0, 300, {.size = 2}),

        Choice(Encode, "txtDTMFSpeed", 0x110, {6, 8, 10, 15}),
        Choice(Encode, "txtFstDigitTime", 0x111, milliseconds),
        Number(Encode, "txtFstDigitDelay", 0x112, 15, 100, {.factor = 10}),
        Choice(Encode, "txtTone", 0x113, milliseconds),
        Number(Encode, "txtDCodeAssign", 0x114, 1, 16, {.unit = "s"}),
        Check(Encode, "chkDTMFSideTone", 0x115),
        Code(Decode, "txtIDCode", 0x120, {3, 10, 10}, Digits, Unused),
        List(Decode, "cboGroupCode", 0x116, {0, 'A', 'B', 'C', 'D', '#', '*'}),
        Number(Decode, "txtAutoResetTimer", 0x117, 1, 15),
        List(Decode, "cboCallAlert", 0x118, {2, 0, 1}),
        List(Decode, "cboTranspond", 0x119, {0, 1, 2}),
        Check(Decode, "chkClear", 0x11A),
        Code(Decode, "txtStunCode", 0x1F0, {3, 10, 10}, DtmfDigits, Unused),
        List(Decode, "cboStunType", 0x1FA, {0, 1}, {HasStunCode}),

        Number(Corvane, "txtFleet", 0x170, 1, 250, {.offset = 99}),
        Number(Corvane, "txtID", 0x171, 1, 4000, {.offset = 999, .size = 2}),
        List(Corvane, "cboBaudRate", 0x175, {0, 1}),
        Number(Corvane, "txtDelayTime", 0x173, 0, 6000, {.size = 2}),
        Number(Corvane, "txtMsgModeTimer", 0x176, 1, 300, {.size = 2}),
        Check(Corvane, "chkSideTone", 0x178),

        Code(Message, "txtMsg(0)", 0x300, {1, 16, 32}, Letters, Unused),
        Code(Message, "txtMsg(1)", 0x320, {1, 16, 32}, Letters, Unused),
    };
    for (int number = 1; number <= 8; ++number) {
        fields.push_back(Memory(number));
    }
    return fields;
}

} // namespace

const std::vector<EntryField>& EntryFields() {
    static const std::vector<EntryField> fields = All();
    return fields;
}

} // namespace zelvor::random

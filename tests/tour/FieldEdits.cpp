#include "tour/FieldEdits.h"

#include "tour/Checks.h"

namespace zelvor::tour {

namespace {

FieldEdit Text(const char* control, const char* typed, const char* shows, int address, const char* bytes) {
    return {FieldEdit::Kind::Text, control, typed, 0, 0, shows, address, Hex(bytes)};
}

FieldEdit List(const char* control, int entry, const char* shows, int address, const char* bytes) {
    return {FieldEdit::Kind::List, control, "", entry, 0, shows, address, Hex(bytes)};
}

FieldEdit Tick(const char* control, int address, const char* bytes) {
    return {FieldEdit::Kind::Check, control, "", 0, 0, "", address, Hex(bytes)};
}

FieldEdit Cell(const char* table, int row, int column, const char* typed, const char* shows, int address,
               const char* bytes) {
    return {FieldEdit::Kind::Cell, table, typed, row, column, shows, address, Hex(bytes)};
}

FieldEdit Look(const char* table, int row, int column, const char* shows) {
    return {FieldEdit::Kind::Look, table, "", row, column, shows, 0, {}};
}

FieldEdit Page(const char* tabs, int page) {
    return {FieldEdit::Kind::Page, tabs, "", page, 0, "", 0, {}};
}

// Channel 11 is the one that sends its PTT ID; column 9 of the grid tells it by the type.

FeatureWindow EnglishOptionalFeatures() {
    return {"MnuEditOptionalFeatures",
            "OptionalForm",
            "Optional Features",
            "optfeatures.htm",
            "optional-features",
            {Text("txtTOT", "100", "105", 0x130, "07"), Text("txtTOTPreAlert", "5", "5", 0x131, "05"),
             Text("txtSQLevel", "7", "7", 0x134, "07"), List("cboMICSens", 1, "High", 0x13D, "01"),
             List("cboVoiceAnnu", 1, "English", 0x12F, "02"), Tick("chkBattSave", 0x135, "01"),
             Tick("chkBeep", 0x136, "00"), Tick("chkScramblerAct", 0x12C, "01"),
             List("cboPTTIDType", 1, "Corvane", 0x133, "01"), Look("ChannelGrid", 11, 9, "Own"),
             List("cboPTTIDType", 0, "DTMF", 0x133, "00"), Look("ChannelGrid", 11, 9, "On"),
             List("cboPTTID", 2, "Both", 0x132, "02"),
             // The radio held 12345: its last two digits stay behind the new ones.
             Text("txtPTTCode(0)", "987", "987", 0x140, "39 38 37 34 35 FF"),
             Text("txtPTTCode(1)", "*5d", "*5D", 0x150, "2A 35 44 FF"), Tick("chkVOXFunc", 0x139, "01"),
             Tick("chkVOXInhibit", 0x138, "01"), Text("txtVOXGainLevel", "3", "3", 0x13A, "03"),
             List("cboVOXDelayTime", 4, "2", 0x13B, "04"), Tick("chkCancel", 0x137, "01"),
             Tick("chkVOXProceedTone", 0x13C, "01"), Tick("chkCloneMode", 0x13E, "01")}};
}

FeatureWindow ChineseOptionalFeatures() {
    return {"MnuEditOptionalFeatures",
            "OptionalForm",
            "可选功能",
            "optfeatures.htm",
            "optional-features",
            {Text("txtTOT", "999", "600", 0x130, "28"),
             Text("txtTOTPreAlert", "0", "关", 0x131, "00"),
             Text("txtSQLevel", "", "0", 0x134, "00"),
             List("cboMICSens", 0, "常规", 0x13D, "00"),
             List("cboVoiceAnnu", 2, "中文", 0x12F, "01"),
             Tick("chkBattSave", 0x135, "00"),
             Tick("chkBeep", 0x136, "01"),
             Tick("chkScramblerAct", 0x12C, "00"),
             Tick("chkScramblerBackup", 0x12D, "01"),
             List("cboPTTIDType", 1, "Corvane(科瓦讯)", 0x133, "01"),
             Look("ChannelGrid", 11, 9, "自身"),
             List("cboPTTIDType", 0, "DTMF(双音多频)", 0x133, "00"),
             Look("ChannelGrid", 11, 9, "开"),
             List("cboPTTID", 1, "发射结束", 0x132, "01"),
             Text("txtPTTCode(1)", "A1", "A1", 0x150, "41 31 44 FF"),
             Tick("chkVOXInhibit", 0x138, "00"),
             Text("txtVOXGainLevel", "25", "10", 0x13A, "0A"),
             List("cboVOXDelayTime", 0, "0.3", 0x13B, "00"),
             Tick("chkCancel", 0x137, "00"),
             Tick("chkVOXProceedTone", 0x13C, "00"),
             Tick("chkCloneMode", 0x13E, "00"),
             Tick("chkVOXFunc", 0x139, "00")}};
}

FeatureWindow EnglishKeys() {
    return {"MnuEditKeyAssignment",
            "KeyAssign",
            "Key Assignment",
            "keyassign.htm",
            "key-assignment",
            {List("cboKey(0)", 4, "Monitor", 0x11D, "04"), List("cboKey(1)", 0, "None", 0x11E, "FF")}};
}

FeatureWindow ChineseKeys() {
    return {"MnuEditKeyAssignment",
            "KeyAssign",
            "键设定",
            "keyassign.htm",
            "key-assignment",
            {List("cboKey(0)", 1, "自动拨号", 0x11D, "00"), List("cboKey(1)", 8, "扰频器", 0x11E, "08")}};
}

FeatureWindow EnglishDtmf() {
    return {"MnuEditDTMF",
            "DTMFForm",
            "DTMF",
            "dtmf.htm",
            "dtmf",
            {Text("txtDTMFSpeed", "14", "10", 0x110, "02"), Text("txtFstDigitTime", "499", "100", 0x111, "01"),
             Text("txtFstDigitDelay", "155", "150", 0x112, "0F"), Text("txtTone", "5000", "1000", 0x113, "03"),
             Text("txtDCodeAssign", "7", "7s", 0x114, "07"), Tick("chkDTMFSideTone", 0x115, "00"), Page("SSTab1", 2),
             Text("txtIDCode", "45678", "45678", 0x120, "34 35 36 37 38 FF FF FF FF FF"),
             List("cboGroupCode", 6, "*", 0x116, "2A"), Text("txtAutoResetTimer", "20", "15", 0x117, "0F"),
             List("cboCallAlert", 2, "Continuous", 0x118, "01"), List("cboTranspond", 2, "ID Code", 0x119, "02"),
             Tick("chkClear", 0x11A, "01"), Text("txtStunCode", "abc#", "ABC#", 0x1F0, "41 42 43 23 FF FF FF FF FF FF"),
             List("cboStunType", 1, "TX/RX Inhibit", 0x1FA, "01"), Page("SSTab1", 3),
             Cell("msgAutodial", 4, 1, "911", "911", 0x230, "39 31 31 20 20 20 20 20 20 20 20 20 20 20 20 20")}};
}

FeatureWindow ChineseDtmf() {
    return {"MnuEditDTMF",
            "DTMFForm",
            "DTMF(双音多频)",
            "dtmf.htm",
            "dtmf",
            {Text("txtDTMFSpeed", "15", "15", 0x110, "03"), Text("txtFstDigitTime", "99", "0", 0x111, "00"),
             Text("txtFstDigitDelay", "140", "100", 0x112, "0A"), Text("txtTone", "500", "500", 0x113, "02"),
             Text("txtDCodeAssign", "17", "D 码", 0x114, "00"), Tick("chkDTMFSideTone", 0x115, "01"), Page("SSTab1", 2),
             Text("txtIDCode", "1234567890", "1234567890", 0x120, "31 32 33 34 35 36 37 38 39 30"),
             List("cboGroupCode", 0, "关", 0x116, "00"), Text("txtAutoResetTimer", "0", "关", 0x117, "00"),
             List("cboCallAlert", 0, "关", 0x118, "02"), List("cboTranspond", 1, "告警", 0x119, "01"),
             Tick("chkClear", 0x11A, "00"), Text("txtStunCode", "159D", "159D", 0x1F0, "31 35 39 44 FF FF"),
             List("cboStunType", 0, "TX Inhibit", 0x1FA, "00"), Page("SSTab1", 3),
             Cell("msgAutodial", 4, 1, "#1*", "#1*", 0x230, "23 31 2A 20 20 20 20 20 20 20 20 20 20 20 20 20")}};
}

// A first digit typed into the fleet list is already brought into range, and the other column becomes all.

FeatureWindow EnglishCorvane() {
    return {"MnuEditCorvane",
            "CorvaneForm",
            " Corvane",
            "corvane.htm",
            "corvane",
            {Text("txtFleet", "50", "100", 0x170, "01"), Text("txtID", "4999", "4999", 0x171, "A0 0F"),
             List("cboBaudRate", 1, "2400", 0x175, "01"), Text("txtDelayTime", "250", "250", 0x173, "FA 00"),
             Text("txtMsgModeTimer", "0", "Off", 0x176, "00 00"), Tick("chkSideTone", 0x178, "00"), Page("SSTab1", 2),
             Cell("msgFleetList", 5, 1, "1", "100", 0x1D0, "01 00 00"), Look("msgFleetList", 5, 2, "All"),
             Cell("msgFleetList", 6, 2, "2", "1000", 0x1D3, "00 01 00"), Look("msgFleetList", 6, 1, "All")}};
}

FeatureWindow ChineseCorvane() {
    return {"MnuEditCorvane",
            "CorvaneForm",
            " Corvane(科瓦讯)",
            "corvane.htm",
            "corvane",
            {Text("txtFleet", "900", "349", 0x170, "FA"), Text("txtID", "999", "1000", 0x171, "01 00"),
             List("cboBaudRate", 0, "1200", 0x175, "00"), Text("txtDelayTime", "9999", "6000", 0x173, "70 17"),
             Text("txtMsgModeTimer", "60", "60", 0x176, "3C 00"), Tick("chkSideTone", 0x178, "01"), Page("SSTab1", 2),
             Cell("msgFleetList", 7, 1, "a", "全部", 0x1D6, "00 00 00"), Look("msgFleetList", 7, 2, "全部")}};
}

} // namespace

const std::vector<FeatureWindow>& EnglishFeatures() {
    static const std::vector<FeatureWindow> windows{EnglishOptionalFeatures(), EnglishKeys(), EnglishDtmf(),
                                                    EnglishCorvane()};
    return windows;
}

const std::vector<FeatureWindow>& ChineseFeatures() {
    static const std::vector<FeatureWindow> windows{ChineseOptionalFeatures(), ChineseKeys(), ChineseDtmf(),
                                                    ChineseCorvane()};
    return windows;
}

} // namespace zelvor::tour

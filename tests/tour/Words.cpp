#include "tour/Words.h"

namespace zelvor::tour {

namespace {

Box Completed(const QString& text) {
    return {"", text, QMessageBox::Information, QMessageBox::Ok, QMessageBox::Ok};
}

Box Warning(const QString& title, const QString& text) {
    return {title, text, QMessageBox::Warning, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel};
}

Box ExitQuestion(const QString& title, const QString& text) {
    return {title, text, QMessageBox::Question, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes};
}

Box SaveQuestion(const QString& title, const QString& text) {
    return {title, text, QMessageBox::Warning, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
            QMessageBox::Yes};
}

Box PrintQuestion(const QString& title, const QString& text) {
    return {title, text, QMessageBox::Question, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel};
}

Box ConnectionPrompt(const QString& title, const QString& text) {
    return {title, text, QMessageBox::Critical, QMessageBox::Retry | QMessageBox::Cancel, QMessageBox::Retry};
}

} // namespace

const Words& English() {
    static const Words words{
        .language = "english",
        .settings = "0",
        .titleHead = "Zelvor [4618: VHF: 136-174 MHz(M)] [ File Name:",
        .gridCaption = " Channel Information [ Channel - %1 ]",
        .readCaption = "Read data from radio",
        .writeCaption = "Write data to radio",
        .aboutCaption = "About Zelvor",
        .aboutText = "Zelvor RADIO PROGRAMMING SOFTWARE\nFOR 4618/4613/4617/5618/5613/5617\n\nVERSION 1.00\n"
                     "RELEASE Jan/30/2007",
        .modelCaption = "Model Information",
        .portCaption = "Communication Port",
        .portLabel = "COM1",
        .channelNode = " Channel Information",
        .fileFilter = "QPK Data Files(*.dat)",
        .languageCaption = "Language File Setup",
        .helpTitle = "Zelvor Help",
        .helpFolder = "en",
        .memoryCaption = "Memory Map",
        .informationCaption = "Radio Information",
        .testModeCaption = "Test Mode",
        .none = "None",
        .printCaption = "Print Out List",
        .readCompleted = Completed("Reading Completed"),
        .writeCompleted = Completed("Writing Completed"),
        .cleared = Warning("Warning", "All data will be cleared."),
        .exit = ExitQuestion("Confirmation", "Do you wish to exit Zelvor program？"),
        .changed = SaveQuestion("Zelvor", "Do you wish to save the changes in \"Zelvor.DAT\" ?"),
        .noConnection = ConnectionPrompt("Error", "please check all connections and communication port settings."),
        .printTuning = PrintQuestion("Confirmation", "All tuning data print out."),
    };
    return words;
}

const Words& Chinese() {
    static const Words words{
        .language = "chinese",
        .settings = "1",
        .titleHead = "Zelvor [4618: VHF: 136-174 MHz(M)] [ 文件名:",
        .gridCaption = " 信道信息 [ 信道 - %1 ]",
        .readCaption = "从对讲机读取数据",
        .writeCaption = "向对讲机写入数据",
        .aboutCaption = "关于 Zelvor",
        .aboutText = "Zelvor对讲机编程软件\n用于4618/4613/4617/5618/5613/5617\n\n版本 1.00\n发布2007/01/30",
        .modelCaption = "机型信息",
        .portCaption = "通信端口",
        .portLabel = "通信口1",
        .channelNode = " 信道信息",
        .fileFilter = "QPK 数据文件 (*.dat)",
        .languageCaption = "语言文件设置",
        .helpTitle = "Zelvor 帮助",
        .helpFolder = "zh",
        .memoryCaption = "内存指针图",
        .informationCaption = "对讲机信息",
        .testModeCaption = "测试模式",
        .none = "无",
        .printCaption = "打印列表",
        .readCompleted = Completed("读取完毕"),
        .writeCompleted = Completed("写入完毕"),
        .cleared = Warning("警告", "所有数据将被清除."),
        .exit = ExitQuestion("确认", "是否退出 Zelvor 程序？"),
        .changed = SaveQuestion("警告", "文件已更改,是否保存?"),
        .noConnection = ConnectionPrompt("错误", "检查所有连接及通信端口设置。"),
        .printTuning = PrintQuestion("确认", "打印输出所有调谐数据。"),
    };
    return words;
}

} // namespace zelvor::tour

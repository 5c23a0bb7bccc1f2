"""Does a user's whole job by what the accessibility bus offers, in English and in Chinese: reads a radio, edits a
channel, saves it, writes it back, asks, keys and tunes the radio, looks into every other window, and leaves. For
scripts/check-accessibility; argument: the folder of the programs.

Keys that are pressed are Enter, which opens a cell's editor and ends it and opens a node of the navigator, and Escape,
which closes the help. The hidden way to the memory map is a click. All else are actions, texts and values of the tree.
"""

import os
import subprocess
import sys
import tempfile
import time
from dataclasses import dataclass
from pathlib import Path

from accessible_program import CHECKED, ENABLED, ESCAPE, PATIENCE, RETURN, Failure, Program, has

READ_STEPS = 16
WRITE_STEPS = 49
POWER_COLUMN = 5

VALUE_CHANGED = "object:property-change:accessible-value"
NAME_CHANGED = "object:property-change:accessible-name"
DESCRIPTION_CHANGED = "object:property-change:accessible-description"
TEXT_INSERTED = "object:text-changed:insert"
FOCUS_CHANGED = "object:state-changed:focused"


@dataclass(frozen=True)
class Dialog:
    menu: str
    entry: str
    role: str
    title: str
    button: str


@dataclass(frozen=True)
class Words:
    language: str
    setting: str  # of the language in the settings
    title: str  # of the main window, with the file name to come
    file: str
    save_as: str
    save_as_title: str
    file_name: str
    save: str
    exit: str
    exit_question: str
    changed_question: str
    yes: str
    no: str
    edit: str
    program: str
    read: str
    read_title: str
    reading: str
    read_done: str
    write: str
    write_title: str
    writing: str
    write_done: str
    completed: str
    ok: str
    box_ok: str
    channels: str
    channel_window: str
    free_area: str
    frequency: str
    high: str
    channel_edit: str
    tools: str
    information: str
    information_title: str
    asking: str  # in the status bar, with the percentage to come
    version: str
    test: str
    test_title: str
    receiving: str
    transmitting: str
    tuning: str
    tuning_dialogs: tuple
    start: str
    on: str
    off: str
    cancel: str
    toolkit_cancel: str
    view: str
    navigator: str
    optional_features: str
    vox: str
    vox_gain: str
    help: str
    help_topics: str
    help_title: str
    help_contents: str
    help_page: str
    help_entry: str
    search: str
    search_words: str
    found: str
    memory_map: str
    address: str
    changed: str
    print: str
    print_list: str
    print_setup: str
    print_setup_title: str
    close: str
    dialogs: tuple


@dataclass(frozen=True)
class Tuning:
    """A dialog of the tuning: its item in the list, its title, and the captions of its pages."""

    item: str
    title: str
    pages: tuple


ENGLISH = Words(
    language="english",
    setting="0",
    title="Zelvor [4618: VHF: 136-174 MHz(M)] [ File Name:{}]",
    file="File",
    save_as="Save As",
    save_as_title="Save As",
    file_name="File name:",
    save="Save",
    exit="Exit",
    exit_question="Confirmation",
    changed_question="Zelvor",
    yes="Yes",
    no="No",
    edit="Edit",
    program="Program",
    read="Read from Radio",
    read_title="Read data from radio",
    reading="Reading...",
    read_done="Reading Completed",
    write="Write to Radio",
    write_title="Write data to radio",
    writing="Writing...",
    write_done="Writing Completed",
    completed="Completed.",
    ok="OK",
    box_ok="OK",
    channels="Channel Information",
    channel_window=" Channel Information [ Channel - {} ]",
    free_area="Free Area(Bytes): {}",
    frequency="RX Frequency",
    high="High",
    channel_edit="Channel Edit",
    tools="Tools",
    information="Radio Information",
    information_title="Radio Information",
    asking="Reading radio information: ",
    version="Version V1.0",
    test="Test Mode",
    test_title="Test Mode",
    receiving="RX",
    transmitting="TX",
    tuning="Tuning Mode",
    tuning_dialogs=(
        Tuning("RF High Power", "RF High Power", ("Test", "Low", "Low'", "Center", "High'", "High")),
        Tuning("Sensitivity", "Sensitivity", ("Test", "Low", "Center", "High")),
        Tuning("DTMF Fine Deviation", "DTMF Fine Deviation(Wide)", ("Test",)),
        Tuning("RSSI", "RSSI", ()),
    ),
    start="Start",
    on="On",
    off="Off",
    cancel="Cancel",
    toolkit_cancel="Cancel",
    view="View",
    navigator="Tree View",
    optional_features="Optional Features",
    vox="VOX Function",
    vox_gain="VOX Gain Level",
    help="Help",
    help_topics="Help Topics",
    help_title="Zelvor Help",
    help_contents="Contents",
    help_page="Help page",
    help_entry="DTMF",
    search="Search all pages",
    search_words="xyzzy",
    found="No page has these words.",
    memory_map="Memory Map",
    address="Address {}",
    changed="Changed, was {}",
    print="Print",
    print_list="Print Out List",
    print_setup="Print setup",
    print_setup_title="Print",
    close="Close",
    dialogs=(
        Dialog("File", "Open", "dialog", "Open", "Cancel"),
        Dialog("File", "Print", "dialog", "Print Out List", "Cancel"),
        Dialog("Model", "Model Information", "dialog", "Model Information", "Cancel"),
        Dialog("Setup", "Communication Port", "dialog", "Communication Port", "Cancel"),
        Dialog("Setup", "Language File Setup", "dialog", "Language File Setup", "Cancel"),
        Dialog("Help", "About Zelvor", "dialog", "About Zelvor", "Close"),
    ),
)

CHINESE = Words(
    language="chinese",
    setting="1",
    title="Zelvor [4618: VHF: 136-174 MHz(M)] [ 文件名:{}]",
    file="文件(F)",
    save_as="另存为(A)",
    save_as_title="另存为",
    file_name="文件名称(N)：",
    save="保存(S)",
    exit="退出(X)",
    exit_question="确认",
    changed_question="警告",
    yes="是(Y)",
    no="否(N)",
    edit="编辑(E)",
    program="编程(P)",
    read="从对讲机读取数据(R)",
    read_title="从对讲机读取数据",
    reading="正在读取...",
    read_done="读取完毕",
    write="向对讲机写入数据(W)",
    write_title="向对讲机写入数据",
    writing="正在写入...",
    write_done="写入完毕",
    completed="完毕。",
    ok="确定(O)",
    box_ok="确定",
    channels="信道信息",
    channel_window=" 信道信息 [ 信道 - {} ]",
    free_area="空位(Bytes): {}",
    frequency="接收频率",
    high="高",
    channel_edit="信道编辑(E)",
    tools="工具(T)",
    information="对讲机信息(R)",
    information_title="对讲机信息",
    asking="正在读取对讲机信息：",
    version="版本 V1.0",
    test="测试模式(T)",
    test_title="测试模式",
    receiving="接收",
    transmitting="发射",
    tuning="调谐模式(T)",
    tuning_dialogs=(
        Tuning("RF高功率", "RF高功率", ("测试", "低", "较低", "中心", "较高", "高")),
        Tuning("灵敏度", "灵敏度", ("测试", "低", "中心", "高")),
        Tuning("DTMF细偏差", "DTMF细频差(宽带)", ("测试",)),
        Tuning("RSSI", "RSSI", ()),
    ),
    start="开始",
    on="开",
    off="关",
    cancel="取消(C)",
    toolkit_cancel="取消",
    view="视图(V)",
    navigator="树视图(V)",
    optional_features="可选功能(O)",
    vox="VOX功能",
    vox_gain="VOX增益电平",
    help="帮助(H)",
    help_topics="帮助主题(H)",
    help_title="Zelvor 帮助",
    help_contents="目录",
    help_page="帮助页面",
    help_entry="DTMF(双音多频)",
    search="搜索所有页面",
    search_words="xyzzy",
    found="没有页面包含这些文字。",
    memory_map="内存指针图",
    address="地址 {}",
    changed="已更改，原值 {}",
    print="打印(P)",
    print_list="打印列表",
    print_setup="打印设置(R)",
    print_setup_title="打印",
    close="关闭(C)",
    dialogs=(
        Dialog("文件(F)", "打开(O)", "dialog", "打开", "取消"),
        Dialog("文件(F)", "打印(P)", "dialog", "打印列表", "取消(C)"),
        Dialog("机型(M)", "机型信息(M)", "dialog", "机型信息", "取消(C)"),
        Dialog("设置(S)", "通信端口(C)", "dialog", "通信端口", "取消(C)"),
        Dialog("设置(S)", "语言文件设置(L)", "dialog", "语言文件设置", "取消(C)"),
        Dialog("帮助(H)", "关于 Zelvor(A)", "dialog", "关于 Zelvor", "关闭(C)"),
    ),
)


def check_equal(what, found, wanted):
    if found != wanted:
        raise Failure(f"{what} is '{found}' and must be '{wanted}'")


class Round:
    """The job in one language, in a home folder of its own."""

    def __init__(self, programs, home, words):
        self.programs = programs
        self.home = home
        self.words = words
        self.controls = 0
        self.processes = []

    def run(self):
        try:
            self.start()
            self.look_into_dialogs()
            self.transfer(self.words.read, self.words.read_title, READ_STEPS, self.words.reading, self.words.read_done)
            self.read_grid()
            self.move_cursor()
            self.edit_frequency()
            self.open_list()
            self.save()
            self.look_into_windows()
            self.switch_field()
            self.use_navigator()
            self.look_into_print_setup()
            self.read_help()
            self.change_byte()
            self.write()
            self.ask_radio()
            self.key_radio()
            self.tune_radio()
            self.leave()
        finally:
            self.end_processes()

    def done(self, step):
        self.controls += self.program.check_names() if self.processes[-1].poll() is None else 0
        print(f"ok  [{self.words.language}] {step}", flush=True)

    def start(self):
        settings = self.home / "config" / "Zelvor" / "Zelvor.ini"
        settings.parent.mkdir(parents=True)
        settings.write_text(f"[BackUp]\nLanguage={self.words.setting}\n", encoding="utf-8")
        self.launch("zelvor-radio", "--port", "1", "--save", str(self.radio_file()), ready="ready: COM1")
        self.launch("zelvor")
        self.program = Program("Zelvor")
        self.program.window("frame", self.words.title.format("Zelvor.dat"))
        self.expect_free_area(256)
        self.done("the program is on the bus; the free area is told")

    def launch(self, name, *arguments, ready=None):
        folders = {"HOME": "", "XDG_CONFIG_HOME": "config", "XDG_DATA_HOME": "data"}
        process = subprocess.Popen(
            [self.programs / name, *arguments],
            env=os.environ | {variable: str(self.home / folder) for variable, folder in folders.items()},
            stdout=subprocess.PIPE,
            text=True,
        )
        self.processes.append(process)
        for line in process.stdout if ready else ():
            if ready in line:
                return
        if ready:
            raise Failure(f"{name} did not say '{ready}'")

    def end_processes(self):
        for process in reversed(self.processes):
            process.terminate()
            process.wait(PATIENCE)

    def radio_file(self):
        return self.home / "radio.dat"

    def expect_free_area(self, count):
        self.program.find("label", self.words.free_area.format(count))

    def look_into_dialogs(self):
        for dialog in self.words.dialogs:
            self.program.choose(dialog.menu, dialog.entry)
            window = self.program.window(dialog.role, dialog.title)
            self.controls += self.program.check_names()
            self.program.press("push button", dialog.button, window)
            self.program.wait_until_gone(dialog.role, dialog.title)
        self.done(f"{len(self.words.dialogs)} dialogs: opened, every control named, closed")

    def look_into_windows(self):
        entries = [each.get_name() for each in self.program.entries(self.words.edit)]
        check_equal("the number of entries of the Edit menu", len(entries), 8)
        pages = 0
        for entry in entries:
            self.program.choose(self.words.edit, entry)
            pages += self.look_into_pages()
        self.program.press("push button", self.words.channel_edit)
        pages += self.look_into_pages()
        self.done(f"{len(entries) + 1} windows of the Edit menu and the grid, {pages} pages: every control named")

    def look_into_pages(self):
        """Every page of the window with the focus, the ones at the back, too, by the action of its tab."""
        captions = self.program.tabs()
        for caption in captions:
            self.program.press("page tab", caption)
            self.controls += self.program.check_names()
        if not captions:
            self.controls += self.program.check_names()
        return max(1, len(captions))

    def switch_field(self):
        """What another field rules says that it cannot be used."""
        self.program.choose(self.words.edit, self.words.optional_features)
        ruling = self.program.find("check box", self.words.vox)
        for wanted in (not has(ruling, CHECKED), has(ruling, CHECKED)):
            self.program.act(ruling, "Toggle")
            self.program.wait_for(
                f"the field {self.words.vox_gain} to be {'enabled' if wanted else 'disabled'}",
                lambda: has(self.program.find("text", self.words.vox_gain), ENABLED) == wanted,
            )
        self.done("a field that cannot be used says so")

    def use_navigator(self):
        self.program.choose(self.words.view, self.words.navigator)
        tree = self.program.find("tree", self.words.navigator.split("(")[0]).get_table_iface()
        rows = tree.get_n_rows()
        check_equal("the number of nodes", rows, 9)
        for row in (rows - 1, 2):
            node = tree.get_accessible_at(row, 0)
            self.program.choose(self.words.view, self.words.navigator)
            self.program.act(node, "Toggle")
            self.program.wait_for_focus(node)
            self.program.key(RETURN)
            self.program.find_window_in_front(node.get_name().strip())
            self.controls += self.program.check_names()
        self.done("the navigator: a node is chosen by its action and opens its window")

    def look_into_print_setup(self):
        self.program.choose(self.words.file, self.words.print)
        selection = self.program.window("dialog", self.words.print_list)
        self.program.press("push button", self.words.print_setup, selection)
        dialog = self.program.window("dialog", self.words.print_setup_title)
        self.controls += self.program.check_names()
        self.program.press("push button", self.words.toolkit_cancel, dialog)
        self.program.wait_until_gone("dialog", self.words.print_setup_title)
        self.program.press("push button", self.words.cancel, selection)
        self.program.wait_until_gone("dialog", self.words.print_list)
        self.done("the print setup: every control named")

    def read_help(self):
        self.program.choose(self.words.help, self.words.help_topics)
        window = self.program.window("frame", self.words.help_title)
        self.controls += self.program.check_names()
        page = lambda: self.program.find("label", self.words.help_page, window).get_text_iface().get_text(0, -1)
        first = page()
        contents = self.program.find("list", self.words.help_contents, window)
        self.program.act(self.program.find("list item", self.words.help_entry, contents), "Toggle")
        self.program.wait_for("another page", lambda: page() != first and self.words.help_entry in page())
        search = self.program.find("text", self.words.search, window)
        self.program.hear_from_now()
        search.get_editable_text_iface().set_text_contents(self.words.search_words)
        self.program.wait_for("what was found", lambda: search.get_description() == self.words.found)
        self.program.wait_for_announcement(DESCRIPTION_CHANGED, "text", self.words.search)
        self.controls += self.program.check_names()
        for _ in range(2):  # the search is left, then the window
            self.program.key(ESCAPE)
        self.program.wait_until_gone("frame", self.words.help_title)
        self.done("the help: a page is chosen and read, what a search found is announced")

    def change_byte(self):
        self.program.click_at_top_right(self.program.find("layered pane", ""))
        dialog = self.program.window("dialog", self.words.memory_map)
        self.controls += self.program.check_names()
        table = self.program.find("table", self.words.memory_map, dialog).get_table_iface()
        check_equal("the rows and columns of the memory", (table.get_n_rows(), table.get_n_columns()), (64, 16))
        cell = table.get_accessible_at(1, 2)
        check_equal("the column's header", table.get_column_header(2).get_name(), "2")
        value = cell.get_name()
        self.program.act(cell, "Toggle")
        self.program.find("label", self.words.address.format("0012"), dialog)
        self.program.key(RETURN)
        editor = self.program.find("text", self.words.address.format("0012"), dialog)
        editor.get_editable_text_iface().set_text_contents("A5" if value != "A5" else "5A")
        self.program.key(RETURN)
        self.program.wait_for("the mark of a change", lambda: cell.get_description() == self.words.changed.format(value))
        self.program.press("push button", self.words.cancel, dialog)
        self.program.wait_until_gone("dialog", self.words.memory_map)
        self.done("the memory map: a byte is found by its address, changed and told as changed")

    def transfer(self, entry, title, steps, running, completed):
        self.program.choose(self.words.program, entry)
        dialog = self.program.window("dialog", title)
        bar = self.program.find("progress bar", title, dialog).get_value_iface()
        check_equal("the progress before", (bar.get_current_value(), bar.get_maximum_value()), (0, steps))
        self.controls += self.program.check_names()
        self.program.hear_from_now()
        self.program.press("push button", self.words.ok, dialog)
        for kind, role, name in (
            (NAME_CHANGED, "label", running),
            (VALUE_CHANGED, "progress bar", title),
            (NAME_CHANGED, "label", self.words.completed),
        ):
            self.program.wait_for_announcement(kind, role, name)
        check_equal("the progress at the end", bar.get_current_value(), steps)
        box = self.program.window("alert", completed)
        self.program.find("label", completed, box)
        self.program.wait_for_announcement(FOCUS_CHANGED, "push button", self.words.box_ok, 1)
        self.controls += self.program.check_names()
        self.program.press("push button", self.words.box_ok, box)
        self.program.wait_until_gone("alert", completed)
        self.program.wait_until_gone("dialog", title)
        self.done(f"{entry}: its beginning, progress and end are announced, the box is told and dismissed")

    def grid(self):
        return self.program.find("table", self.words.channels).get_table_iface()

    def expect_cell(self, row, column, text):
        cell = lambda: self.grid().get_accessible_at(row - 1, column - 1)
        self.program.wait_for(
            f"cell {row}, {column} to be '{text}', which is '{cell().get_name()}'", lambda: cell().get_name() == text
        )
        return cell()

    def read_grid(self):
        self.program.window("frame", self.words.title.format("Zelvor.dat"))
        check_equal("the rows and columns", (self.grid().get_n_rows(), self.grid().get_n_columns()), (16, 9))
        check_equal("the row's header", self.grid().get_row_header(0).get_name(), "1")
        check_equal("the row's description", self.grid().get_row_description(0), "1")
        check_equal("the column's header", self.grid().get_column_header(0).get_name(), self.words.frequency)
        check_equal("the column's description", self.grid().get_column_description(0), self.words.frequency)
        self.expect_cell(1, 1, "145.12500")
        self.expect_free_area(0)
        self.done("the grid tells row, column and value")

    def move_cursor(self):
        """Choosing a cell by its action moves the cursor there: its channel is in the window's title."""
        for row, frequency in ((2, "145.25000"), (1, "145.12500")):
            self.program.hear_from_now()
            self.program.act(self.expect_cell(row, 1, frequency), "Toggle")
            self.program.find("frame", self.words.channel_window.format(row))
            self.program.wait_for_announcement(FOCUS_CHANGED, "table cell", frequency, 1)
        self.done("the cursor goes to a cell by the cell's action, and is announced there")

    def edit_frequency(self):
        self.program.key(RETURN)
        editor = self.program.find("text", self.words.frequency)
        check_equal("the text to edit", editor.get_text_iface().get_text(0, -1), "145.12500")
        self.program.wait_for_announcement(FOCUS_CHANGED, "text", self.words.frequency, 1)
        self.controls += self.program.check_names()
        if not editor.get_editable_text_iface().set_text_contents("146.12500"):
            raise Failure("the cell's editor takes no text")
        self.program.key(RETURN)
        self.expect_cell(1, 1, "146.12500")
        self.expect_cell(1, 2, "145.12500")
        self.done("channel 1: the frequency is edited")

    def open_list(self):
        """The name of a list is its value: what it is of, its description tells."""
        self.program.act(self.expect_cell(1, POWER_COLUMN, self.words.high), "Toggle")
        self.program.key(RETURN)
        column = self.grid().get_column_header(POWER_COLUMN - 1).get_name()
        self.program.find_described("combo box", column.strip())
        self.controls += self.program.check_names()
        self.program.key(RETURN)
        self.expect_cell(1, POWER_COLUMN, self.words.high)
        self.done("the list of a cell tells its column")

    def save(self):
        file = self.home / "edited.dat"
        self.program.choose(self.words.file, self.words.save_as)
        dialog = self.program.window("dialog", self.words.save_as_title)
        self.controls += self.program.check_names()
        name = self.program.find("text", self.words.file_name, dialog)
        if not name.get_editable_text_iface().set_text_contents(str(file)):
            raise Failure("the file's name takes no text")
        self.program.press("push button", self.words.save, dialog)
        self.program.wait_until_gone("dialog", self.words.save_as_title)
        self.program.window("frame", self.words.title.format("edited.dat"))
        self.expect_frequency(file)
        self.done("the file is saved and holds the frequency")

    def write(self):
        self.radio_file().unlink()
        self.transfer(
            self.words.write, self.words.write_title, WRITE_STEPS, self.words.writing, self.words.write_done
        )
        self.program.wait_for("the radio's memory", self.radio_file().exists)
        self.expect_frequency(self.radio_file())
        self.done("the radio holds the frequency")

    def ask_radio(self):
        self.program.hear_from_now()
        self.program.choose(self.words.tools, self.words.information)
        self.program.wait_for_announcement_beginning(NAME_CHANGED, "label", self.words.asking)
        dialog = self.program.window("dialog", self.words.information_title)
        self.program.find("label", self.words.version, dialog)
        self.controls += self.program.check_names()
        self.program.press("push button", self.words.close, dialog)
        self.program.wait_until_gone("dialog", self.words.information_title)
        self.done("the radio's answering is announced, its version is told")

    def key_radio(self):
        """Test mode: the lamp beside PTT tells whether the radio transmits."""
        self.program.choose(self.words.program, self.words.test)
        dialog = self.program.window("dialog", self.words.test_title)
        lamp = self.program.find("image", "PTT", dialog)
        self.controls += self.program.check_names()
        for state in (self.words.transmitting, self.words.receiving):
            self.program.hear_from_now()
            self.program.press("push button", "PTT", dialog)
            self.program.wait_for(f"the lamp to tell {state}", lambda: lamp.get_description() == state)
            self.program.wait_for_announcement(DESCRIPTION_CHANGED, "image", "PTT")
        self.program.press("push button", self.words.close, dialog)
        self.program.wait_until_gone("dialog", self.words.test_title)
        self.done("test mode: the radio is keyed and released, and the lamp announces it")

    def tune_radio(self):
        self.program.choose(self.words.program, self.words.test)
        test = self.program.window("dialog", self.words.test_title)
        for dialog in self.words.tuning_dialogs:
            self.program.act(self.program.find("list item", dialog.item, test), "Toggle")
            self.program.press("push button", self.words.tuning, test)
            window = self.program.window("dialog", dialog.title)
            check_equal(f"the pages of {dialog.title}", tuple(self.program.tabs(window)), dialog.pages)
            for page in dialog.pages:
                self.program.press("page tab", page, window)
                self.adjust(window, f"{dialog.title} {page}")
            if not dialog.pages:
                self.measure(window, dialog.title)
            self.program.press("push button", self.words.cancel, window)
            self.program.wait_until_gone("dialog", dialog.title)
        self.program.press("push button", self.words.close, test)
        self.program.wait_until_gone("dialog", self.words.test_title)
        self.done(f"{len(self.words.tuning_dialogs)} tuning dialogs: chosen by their item, every value told and set")

    def adjust(self, window, name):
        self.controls += self.program.check_names()
        slider = self.program.find("slider", name, window)
        bar = self.program.find("progress bar", name, window).get_value_iface()
        arrows = self.program.find("spin button", name, window)
        text = self.program.find("text", name, window).get_text_iface()
        value = int(slider.get_value_iface().get_current_value())
        check_equal(f"the text of {name}", text.get_text(0, -1), str(value))
        check_equal(f"the range of {name}", arrows.get_value_iface().get_maximum_value(), 255)
        self.program.hear_from_now()
        self.program.act(arrows, "Increase" if value < 255 else "Decrease")
        changed = value + 1 if value < 255 else value - 1
        self.program.wait_for(f"{name} to be {changed}", lambda: text.get_text(0, -1) == str(changed))
        check_equal(f"the slider of {name}", slider.get_value_iface().get_current_value(), changed)
        check_equal(f"the bar of {name}", bar.get_current_value(), changed)
        check_equal(f"the arrows' text of {name}", arrows.get_text_iface().get_text(0, -1), str(changed))
        for role in ("slider", "progress bar"):
            self.program.wait_for_announcement(VALUE_CHANGED, role, name)

    def measure(self, window, name):
        self.controls += self.program.check_names()
        lamp = self.program.find("image", self.words.start, window)
        for state in (self.words.on, self.words.off):
            self.program.hear_from_now()
            self.program.press("push button", self.words.start, window)
            self.program.wait_for(f"the lamp to tell {state}", lambda: lamp.get_description() == state)
            self.program.wait_for_announcement(DESCRIPTION_CHANGED, "image", self.words.start)

    def expect_frequency(self, file):
        field = [self.programs / "zelvor-cli", "get", file, "channels.1.rx_mhz"]
        found = subprocess.run(field, capture_output=True, text=True, check=True).stdout.strip()
        check_equal(f"channel 1 in {file.name}", found, "channels.1.rx_mhz=146.12500")

    def leave(self):
        self.program.choose(self.words.file, self.words.exit)
        for title, answer in ((self.words.exit_question, self.words.yes), (self.words.changed_question, self.words.no)):
            box = self.program.window("alert", title)
            self.controls += self.program.check_names()
            self.program.press("push button", answer, box)
        check_equal("the exit status", self.processes[-1].wait(PATIENCE), 0)
        self.done(f"left; {self.controls} times a control was in sight, and had a name")


def main():
    began = time.monotonic()
    programs = Path(sys.argv[1]).resolve()
    for words in (ENGLISH, CHINESE):
        with tempfile.TemporaryDirectory() as home:
            try:
                Round(programs, Path(home), words).run()
            except Failure as failure:
                print(f"FAILED  [{words.language}] {failure}", flush=True)
                return 1
    print(f"The job is done by accessible means alone, in {time.monotonic() - began:.0f} seconds.")
    return 0


sys.exit(main())

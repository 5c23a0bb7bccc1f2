"""Does a user's whole job by what the accessibility bus offers, in English and in Chinese: reads a radio, edits a
channel, saves it, writes it back, asks and keys the radio, and leaves. For scripts/check-accessibility; argument: the
folder of the programs.

The one key that is pressed is Enter, in the grid: it opens a cell's editor and ends it. All else are actions, texts and
values of the tree.
"""

import os
import subprocess
import sys
import tempfile
import time
from dataclasses import dataclass
from pathlib import Path

from accessible_program import PATIENCE, RETURN, Failure, Program

READ_STEPS = 16
WRITE_STEPS = 49
POWER_COLUMN = 5

VALUE_CHANGED = "object:property-change:accessible-value"
NAME_CHANGED = "object:property-change:accessible-name"
DESCRIPTION_CHANGED = "object:property-change:accessible-description"
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
    version: str
    test: str
    test_title: str
    receiving: str
    transmitting: str
    close: str
    dialogs: tuple


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
    version="Version V1.0",
    test="Test Mode",
    test_title="Test Mode",
    receiving="RX",
    transmitting="TX",
    close="Close",
    dialogs=(
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
    version="版本 V1.0",
    test="测试模式(T)",
    test_title="测试模式",
    receiving="接收",
    transmitting="发射",
    close="关闭(C)",
    dialogs=(
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
            self.write()
            self.ask_radio()
            self.key_radio()
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
        for entry in entries:
            self.program.choose(self.words.edit, entry)
            self.controls += self.program.check_names()
        self.program.press("push button", self.words.channel_edit)
        self.controls += self.program.check_names()
        self.done(f"{len(entries) + 1} windows of the Edit menu and the grid: every control named")

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
        self.program.choose(self.words.tools, self.words.information)
        dialog = self.program.window("dialog", self.words.information_title)
        self.program.find("label", self.words.version, dialog)
        self.controls += self.program.check_names()
        self.program.press("push button", self.words.close, dialog)
        self.program.wait_until_gone("dialog", self.words.information_title)
        self.done("the radio's version is told")

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

#include "channels/EmbedInfoForm.h"

#include <QInputMethodEvent>
#include <set>

#include "channels/ChildFormFixture.h"

namespace zelvor {
namespace {

using Bytes = std::vector<int>;

/// Line 1 is "HELLO", line 2 "WORLD".
class EmbedInfoFormTest : public ChildFormTest<EmbedInfoForm> {
protected:
    void SetUp() override {
        Put(0x300, {'H', 'E', 'L', 'L', 'O'});
        Put(0x320, {'W', 'O', 'R', 'L', 'D'});
    }
    Bytes Field(int base, int count = 32) const {
        Bytes bytes;
        for (int i = 0; i < count; ++i) {
            bytes.push_back(At(base + i));
        }
        return bytes;
    }
    static Bytes Filled(const std::string& text) {
        Bytes bytes(text.begin(), text.end());
        bytes.resize(32, 0xFF);
        return bytes;
    }
    /// Gives a box a text that came by pasting, and leaves it.
    void EnterPasted(const char* name, const QString& text) {
        Box(name).setFocus();
        ASSERT_TRUE(Box(name).hasFocus());
        Key(Qt::Key_Backspace);
        Paste(text);
        Key(Qt::Key_Tab);
    }
    /// What stands beside a line's caption.
    std::string Hint(int line) {
        return Find<QLabel>(line == 0 ? "lblMsgHint(0)" : "lblMsgHint(1)").text().toStdString();
    }
    void Leave(const char* name) {
        Box(name).setFocus();
        Key(Qt::Key_Tab);
    }
};

TEST_F(EmbedInfoFormTest, ShowsBothLines) {
    Show();
    EXPECT_EQ(Text("txtMsg(0)"), "HELLO");
    EXPECT_EQ(Text("txtMsg(1)"), "WORLD");
    EXPECT_LT(Box("txtMsg(0)").y(), Box("txtMsg(1)").y());
}

TEST_F(EmbedInfoFormTest, TextsAreInTheLanguage) {
    Show();
    EXPECT_EQ(form->windowTitle(), " Embedded Message");
    EXPECT_EQ(Find<QPushButton>("cmdClose").text(), "&Close");
    EXPECT_EQ(Find<QPushButton>("cmdHelp").text(), "&Help");
    EXPECT_EQ(Box("txtMsg(0)").accessibleName(), "Line 1");
    EXPECT_EQ(Box("txtMsg(1)").accessibleName(), "Line 2");
    ExpectNoTextCutOff();
    Show(Language::Chinese);
    EXPECT_EQ(form->windowTitle(), " 嵌入信息");
    EXPECT_EQ(Find<QPushButton>("cmdClose").text(), "关闭(&C)");
    EXPECT_EQ(Find<QPushButton>("cmdHelp").text(), "帮助(&H)");
    EXPECT_EQ(Box("txtMsg(0)").accessibleName(), "第 1 行");
    EXPECT_EQ(Box("txtMsg(1)").accessibleName(), "第 2 行");
    ExpectNoTextCutOff();
}

TEST_F(EmbedInfoFormTest, TheBoxesAreThreeHundredPixelsWideInTheFaceOfTheMessage) {
    Load();
    for (const char* name : {"txtMsg(0)", "txtMsg(1)"}) {
        EXPECT_EQ(Box(name).width(), 300); // 4500 twips
        EXPECT_EQ(Box(name).font().families().first(), "宋体");
        EXPECT_GE(Box(name).font().families().size(), 3);
        EXPECT_TRUE(Find<QWidget>("picEmbeddedMsg").isAncestorOf(&Box(name)));
    }
    EXPECT_EQ(form->Window(), ChildWindow::EmbeddedMessage);
    EXPECT_EQ(form->objectName(), "EmbedInfoForm");
}

TEST_F(EmbedInfoFormTest, EnterAndTabMoveOnAndSelectTheNextLine) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab}) {
        Show();
        EXPECT_TRUE(Box("txtMsg(0)").hasFocus());
        EXPECT_EQ(Box("txtMsg(0)").selectedText(), "HELLO");
        Key(key);
        EXPECT_TRUE(Box("txtMsg(1)").hasFocus());
        EXPECT_EQ(Box("txtMsg(1)").selectedText(), "WORLD");
        Key(key);
        EXPECT_TRUE(Find<QPushButton>("cmdClose").hasFocus());
    }
}

TEST_F(EmbedInfoFormTest, ALineIsStoredWhenItIsLeft) {
    Show();
    Type("Hi there");
    EXPECT_EQ(Field(0x300), Filled("HELLO"));
    Key(Qt::Key_Tab);
    EXPECT_EQ(Field(0x300), Filled("Hi there"));
    Type("2!");
    Key(Qt::Key_Return);
    EXPECT_EQ(Field(0x320), Filled("2!"));
    EXPECT_EQ(Field(0x300), Filled("Hi there"));
}

TEST_F(EmbedInfoFormTest, AnEmptyLineIsThirtyTwoErasedBytes) {
    Show();
    Enter("txtMsg(0)", "");
    EXPECT_EQ(Field(0x300), Bytes(32, 0xFF));
    EXPECT_EQ(Field(0x320), Filled("WORLD"));
    Enter("txtMsg(1)", "");
    EXPECT_EQ(Field(0x320), Bytes(32, 0xFF));
    EXPECT_EQ(document.Image, DataImage());
}

TEST_F(EmbedInfoFormTest, ALineOfThirtyTwoBytesShowsThemAllAndSurvivesACommit) {
    for (const int base : {0x300, 0x320}) {
        for (int i = 0; i < 32; ++i) {
            document.Image.Set(base + i, static_cast<std::uint8_t>('a' + i % 26));
        }
    }
    const DataImage before = document.Image;
    Show();
    EXPECT_EQ(Text("txtMsg(0)"), "abcdefghijklmnopqrstuvwxyzabcdef");
    EXPECT_EQ(Text("txtMsg(1)"), "abcdefghijklmnopqrstuvwxyzabcdef");
    Leave("txtMsg(0)");
    Leave("txtMsg(1)");
    EXPECT_EQ(document.Image, before);
}

TEST_F(EmbedInfoFormTest, EveryByteShowsAsACharacterOfItsOwnAndComesBack) {
    std::set<QString> characters;
    for (int byte = 0; byte < 255; ++byte) {
        Put(0x300, {'<', byte, '>', 0xFF});
        Show();
        EXPECT_EQ(Box("txtMsg(0)").text().size(), 3) << byte;
        characters.insert(Box("txtMsg(0)").text());
        Leave("txtMsg(0)");
        EXPECT_EQ(Field(0x300, 4), (Bytes{'<', byte, '>', 0xFF})) << byte;
    }
    EXPECT_EQ(characters.size(), 255U);
}

TEST_F(EmbedInfoFormTest, BytesAboveAsciiAreWindows1252) {
    Put(0x300, {0x80, 0x9F, 0xC4, 0xFE, 0x81});
    Show();
    EXPECT_EQ(Box("txtMsg(0)").text(), QString::fromUtf16(u"\u20AC\u0178\u00C4\u00FE\u0081"));
}

TEST_F(EmbedInfoFormTest, AnErasedByteEndsTheLineAndTheCommitErasesWhatIsBehindIt) {
    Put(0x300, {'A', 'B', 0xFF, 'C', 'D'});
    document.Image.Set(0x31F, 'Z');
    Show();
    EXPECT_EQ(Text("txtMsg(0)"), "AB");
    EXPECT_EQ(Field(0x300, 5), (Bytes{'A', 'B', 0xFF, 'C', 'D'}));
    Key(Qt::Key_Tab);
    EXPECT_EQ(Field(0x300), Filled("AB"));
}

TEST_F(EmbedInfoFormTest, TheSeventeenthTypedCharacterIsRefused) {
    Show();
    for (const char* name : {"txtMsg(0)", "txtMsg(1)"}) {
        Box(name).setFocus();
        Type("1234567890abcdefGH");
        EXPECT_EQ(Text(name), "1234567890abcdef");
        Key(Qt::Key_Backspace);
        Type("XY");
        EXPECT_EQ(Text(name), "1234567890abcdeX");
    }
}

TEST_F(EmbedInfoFormTest, WhatAnInputMethodComposesCountsAsTyped) {
    Show();
    QInputMethodEvent composed;
    composed.setCommitString("一二三四五六七八九十一二三四五六七八");
    QApplication::sendEvent(&Box("txtMsg(0)"), &composed);
    EXPECT_EQ(Box("txtMsg(0)").text(), "一二三四五六七八九十一二三四五六");
}

TEST_F(EmbedInfoFormTest, TypingReplacesASelectionHoweverLongTheTextIs) {
    for (int i = 0; i < 32; ++i) {
        document.Image.Set(0x300 + i, 'x');
    }
    Show();
    Box("txtMsg(0)").deselect();
    Type("y");
    EXPECT_EQ(Text("txtMsg(0)"), std::string(32, 'x'));
    Box("txtMsg(0)").setSelection(0, 1);
    Type("y");
    EXPECT_EQ(Text("txtMsg(0)"), "y" + std::string(31, 'x'));
    Box("txtMsg(0)").selectAll();
    Type("new");
    EXPECT_EQ(Text("txtMsg(0)"), "new");
}

TEST_F(EmbedInfoFormTest, PastingMayBringALongerText) {
    Show();
    EnterPasted("txtMsg(0)", "12345678901234567890123456789012");
    EXPECT_EQ(Text("txtMsg(0)"), "12345678901234567890123456789012");
    EXPECT_EQ(Field(0x300), Filled("12345678901234567890123456789012"));
    EXPECT_EQ(Field(0x320), Filled("WORLD"));
}

TEST_F(EmbedInfoFormTest, PastingTakesTheFirstLineOfSeveral) {
    Show();
    Paste("one\r\ntwo");
    EXPECT_EQ(Text("txtMsg(0)"), "one");
}

TEST_F(EmbedInfoFormTest, ACharacterOutsideTheCodePageEndsTheCommitThereWithoutAWord) {
    Show();
    EnterPasted("txtMsg(0)", "AB信CDEFGH");
    Bytes expected = Filled("HELLO");
    expected[0] = 'A';
    expected[1] = 'B';
    EXPECT_EQ(Field(0x300), expected);
    EXPECT_EQ(Box("txtMsg(0)").text(), "AB信CDEFGH");
    EXPECT_EQ(Field(0x320), Filled("WORLD"));
    // A character of two 16-bit units is outside too, wherever it stands.
    EnterPasted("txtMsg(1)", QString::fromUtf8("\xF0\x9F\x98\x80Z"));
    EXPECT_EQ(Field(0x320), Filled("WORLD"));
    EXPECT_TRUE(services.messages.Shown().empty());
}

TEST_F(EmbedInfoFormTest, ALongTextOfLine1RunsOnIntoTheFieldOfLine2) {
    Show();
    EnterPasted("txtMsg(0)", "12345678901234567890123456789012abc");
    EXPECT_EQ(Field(0x300), Filled("12345678901234567890123456789012"));
    Bytes expected = Filled("WORLD");
    expected[0] = 'a';
    expected[1] = 'b';
    expected[2] = 'c';
    EXPECT_EQ(Field(0x320), expected);
    EXPECT_EQ(Text("txtMsg(1)"), "WORLD"); // its box shows the line that its own commit stores again
    Leave("txtMsg(1)");
    EXPECT_EQ(Field(0x320), Filled("WORLD"));
}

TEST_F(EmbedInfoFormTest, ATextThatIsTooLongForBothFieldsEndsBehindTheLastByte) {
    for (int address = 0x340; address < 0x350; ++address) {
        document.Image.Set(address, 0x11);
    }
    Show();
    EnterPasted("txtMsg(0)", QString(70, u'q'));
    EXPECT_EQ(Field(0x300, 64), Bytes(64, 'q'));
    EXPECT_EQ(Field(0x340, 16), Bytes(16, 0x11));
    EnterPasted("txtMsg(1)", QString(40, u'r'));
    EXPECT_EQ(Field(0x320, 32), Bytes(32, 'r'));
    EXPECT_EQ(Field(0x300, 32), Bytes(32, 'q'));
    EXPECT_EQ(Field(0x340, 16), Bytes(16, 0x11));
}

TEST_F(EmbedInfoFormTest, EachLineHasACaptionAboveIt) {
    const char* const captions[2][2] = {{"Line 1", "Line 2"}, {"第 1 行", "第 2 行"}};
    for (const Language language : {Language::English, Language::Chinese}) {
        Show(language);
        for (int line = 0; line < 2; ++line) {
            auto& caption = Find<QLabel>(line == 0 ? "lblMsg(0)" : "lblMsg(1)");
            const QLineEdit& box = Box(line == 0 ? "txtMsg(0)" : "txtMsg(1)");
            EXPECT_EQ(caption.text(), captions[language == Language::Chinese ? 1 : 0][line]);
            EXPECT_TRUE(caption.isVisible());
            EXPECT_EQ(caption.buddy(), &box);
            EXPECT_EQ(caption.x(), box.x());
            EXPECT_LE(caption.geometry().bottom(), box.y());
        }
        EXPECT_LT(Box("txtMsg(0)").geometry().bottom(), Find<QLabel>("lblMsg(1)").y());
        EXPECT_LE(Box("txtMsg(1)").geometry().bottom(), Find<QWidget>("picEmbeddedMsg").height());
    }
}

TEST_F(EmbedInfoFormTest, TellsHowManyCharactersMayStillBeTyped) {
    Show();
    EXPECT_EQ(Hint(0), "11 left");
    Key(Qt::Key_Backspace);
    EXPECT_EQ(Hint(0), "16 left");
    Type("123456789012345");
    EXPECT_EQ(Hint(0), "1 left");
    Type("67");
    EXPECT_EQ(Hint(0), "0 left");
    Paste("abc");
    EXPECT_EQ(Box("txtMsg(0)").text().size(), 19);
    EXPECT_EQ(Hint(0), "0 left");
    EXPECT_EQ(Hint(1), "11 left");
    EXPECT_EQ(Box("txtMsg(0)").accessibleDescription(), "0 left");
    Show(Language::Chinese);
    EXPECT_EQ(Hint(0), "还可输入 11 个字符");
    ExpectNoTextCutOff();
}

TEST_F(EmbedInfoFormTest, TellsQuietlyOfACharacterThatCannotBeStored) {
    Show();
    const auto quiet = Find<QLabel>("lblMsgHint(0)").foregroundRole();
    Paste("AB信C");
    EXPECT_EQ(Hint(0), "“信” cannot be stored, 12 left");
    EXPECT_NE(Find<QLabel>("lblMsgHint(0)").foregroundRole(), quiet);
    EXPECT_EQ(Find<QLabel>("lblMsgHint(1)").foregroundRole(), quiet);
    EXPECT_EQ(Hint(1), "11 left");
    ExpectNoTextCutOff();
    Box("txtMsg(0)").selectAll();
    Type("AB");
    EXPECT_EQ(Hint(0), "14 left");
    EXPECT_EQ(Find<QLabel>("lblMsgHint(0)").foregroundRole(), quiet);
    const std::pair<QString, QString> others[] = {
        {QString::fromUtf8("\xF0\x9F\x98\x80Z"), QString::fromUtf8("“\xF0\x9F\x98\x80” cannot be stored, 13 left")},
        {QString(QChar(0x200B)), "“U+200B” cannot be stored, 15 left"},
        {QString(QChar(0xFF)), "“ÿ” cannot be stored, 15 left"}, // its byte is that of an erased field
        {QString("Ä€"), "14 left"}};
    for (const auto& [text, hint] : others) {
        Box("txtMsg(0)").selectAll();
        Paste(text);
        EXPECT_EQ(Hint(0), hint.toStdString());
    }
    EXPECT_TRUE(services.messages.Shown().empty());
    Show(Language::Chinese);
    Paste("AB信C");
    EXPECT_EQ(Hint(0), "“信”无法存储，还可输入 12 个字符");
    ExpectNoTextCutOff();
}

TEST_F(EmbedInfoFormTest, TellsWhereALineIsLongerThanItsField) {
    const char* const hints[2][2] = {{"32 at most, the rest goes into line 2", "32 at most, the rest is lost"},
                                     {"最多 32 个字符，其余写入第 2 行", "最多 32 个字符，其余丢失"}};
    for (const Language language : {Language::English, Language::Chinese}) {
        Show(language);
        for (int line = 0; line < 2; ++line) {
            Box(line == 0 ? "txtMsg(0)" : "txtMsg(1)").setFocus();
            Paste(QString(32, u'x'));
            EXPECT_NE(Hint(line), hints[language == Language::Chinese ? 1 : 0][line]);
            Paste("y");
            EXPECT_EQ(Hint(line), hints[language == Language::Chinese ? 1 : 0][line]);
        }
        ExpectNoTextCutOff();
    }
}

TEST_F(EmbedInfoFormTest, OpensNoContextMenu) {
    Show();
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(3, 3), Box("txtMsg(0)").mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(&Box("txtMsg(0)"), &event);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(EmbedInfoFormTest, HelpOpensThePageInTheLanguage) {
    Show();
    Click("cmdHelp");
    Show(Language::Chinese);
    Click("cmdHelp");
    ASSERT_EQ(services.help.Topics().size(), 2U);
    EXPECT_NE(services.help.Topics()[0].find("\\Zelvor_e.chm::/html/embmsg.htm"), std::string::npos);
    EXPECT_NE(services.help.Topics()[1].find("\\Zelvor_c.chm::/html/embmsg.htm"), std::string::npos);
}

TEST_F(EmbedInfoFormTest, BothWaysToCloseCommitWhatIsBeingEditedAndAskToBeUnloaded) {
    Show();
    QSignalSpy unload(form.get(), &ChildForm::UnloadRequested);
    Type("first");
    Click("cmdClose");
    EXPECT_EQ(unload.count(), 1);
    EXPECT_EQ(Field(0x300), Filled("first"));
    Box("txtMsg(1)").setFocus();
    Type("second");
    form->CloseFromFrame();
    EXPECT_EQ(unload.count(), 2);
    EXPECT_EQ(Field(0x320), Filled("second"));
}

TEST_F(EmbedInfoFormTest, AWindowThatIsDestroyedDropsWhatIsBeingEdited) {
    Show();
    Type("dropped");
    form.reset();
    EXPECT_EQ(Field(0x300), Filled("HELLO"));
}

TEST_F(EmbedInfoFormTest, OpeningAndClosingChangesNothing) {
    const DataImage before = document.Image;
    Show();
    Click("cmdClose");
    form.reset();
    EXPECT_EQ(document.Image, before);
}

// Opening changes no byte. Leaving a line erases what stands behind its first erased byte, and nothing else.
TEST_F(EmbedInfoFormTest, OpensOnAnyImageAndACommitErasesOnlyTheTailOfItsLine) {
    const unsigned seed = 20261122;
    std::mt19937 random(seed);
    std::vector<DataImage> images(2, DataImage());
    images[0].Fill(0x00);
    for (int i = 0; i < 2000; ++i) {
        images.push_back(RandomImage(random));
        if (i % 2 == 0) {
            images.back().Set(0x300 + static_cast<int>(random() % 64), 0xFF);
        }
    }
    for (std::size_t i = 0; i < images.size(); ++i) {
        document.Image = images[i];
        Load(i % 3 == 0 ? Language::Chinese : Language::English);
        form->CloseFromFrame();
        ASSERT_EQ(Differences(document.Image, images[i]), Bytes{}) << "seed " << seed << ", image " << i;
        if (i % 20 == 0) {
            Show();
            Leave("txtMsg(0)");
            Leave("txtMsg(1)");
            DataImage expected = images[i];
            for (const int base : {0x300, 0x320}) {
                bool erased = false;
                for (int address = base; address < base + 32; ++address) {
                    erased = erased || expected.At(address) == 0xFF;
                    expected.Set(address, erased ? 0xFF : expected.At(address));
                }
            }
            ASSERT_EQ(Differences(document.Image, expected), Bytes{}) << "seed " << seed << ", image " << i;
        }
    }
}

} // namespace
} // namespace zelvor

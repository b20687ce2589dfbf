#include "platform/CodePage.h"

#include "support/TextOutput.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(CodePageTest, PlainCharactersAreTheirOwnBytes) {
    EXPECT_EQ(ToCodePage(u"Corner Grocery, 12 \"Mill\" Road\r\n\t~"_s),
              "Corner Grocery, 12 \"Mill\" Road\r\n\t~");
    EXPECT_EQ(FromCodePage("Corner Grocery"), u"Corner Grocery"_s);
}

TEST(CodePageTest, AccentedLettersAreTheUpperBytes) {
    EXPECT_EQ(ToCodePage(u"\u00a0\u00a3\u00bd\u00c4\u00df\u00e9\u00f1\u00ff"_s),
              "\xa0\xa3\xbd\xc4\xdf\xe9\xf1\xff");
    EXPECT_EQ(FromCodePage("\xa0\xa3\xbd\xc4\xdf\xe9\xf1\xff"),
              u"\u00a0\u00a3\u00bd\u00c4\u00df\u00e9\u00f1\u00ff"_s);
}

TEST(CodePageTest, MiddleBytesAreTheTypographicCharacters) {
    const QString characters =
        u"\u20ac\u201a\u0192\u201e\u2026\u2020\u2021\u02c6\u2030\u0160\u2039\u0152\u017d"
        "\u2018\u2019\u201c\u201d\u2022\u2013\u2014\u02dc\u2122\u0161\u203a\u0153\u017e\u0178"_s;
    const QByteArray bytes("\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8a\x8b\x8c\x8e"
                           "\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9a\x9b\x9c\x9e\x9f");
    EXPECT_EQ(ToCodePage(characters), bytes);
    EXPECT_EQ(FromCodePage(bytes), characters);
}

TEST(CodePageTest, UnassignedBytesComeBackAsTheyWere) {
    const QByteArray bytes("\x81\x8d\x8f\x90\x9d");
    EXPECT_EQ(FromCodePage(bytes), u"\u0081\u008d\u008f\u0090\u009d"_s);
    EXPECT_EQ(ToCodePage(u"\u0081\u008d\u008f\u0090\u009d"_s), bytes);
}

TEST(CodePageTest, EveryByteReadIsTheSameByteWritten) {
    for (int i = 0; i < 256; ++i) {
        const QByteArray byte(1, char(i));
        EXPECT_EQ(FromCodePage(byte).size(), 1);
        EXPECT_EQ(ToCodePage(FromCodePage(byte)), byte) << i;
    }
}

TEST(CodePageTest, MissingCharacterBecomesOneQuestionMark) {
    EXPECT_EQ(ToCodePage(u"z\u0142 \u20b9 \u65e5\u672c"_s), "z? ? ??");
    EXPECT_EQ(ToCodePage(u"\u0080"_s), "?");
}

TEST(CodePageTest, CharacterOfTwoHalvesBecomesOneQuestionMark) {
    EXPECT_EQ(ToCodePage(u"a\U0001F69Ab\U0001F69A\U0001F69A"_s), "a?b??");
}

TEST(CodePageTest, LoneHalvesBecomeQuestionMarks) {
    const QChar first(0xd83d);
    const QChar second(0xde9a);
    EXPECT_EQ(ToCodePage(QString(first) + u'a'), "?a");
    EXPECT_EQ(ToCodePage(u'a' + QString(second)), "a?");
    EXPECT_EQ(ToCodePage(QString(second) + first), "??");
}

TEST(CodePageTest, NulIsACharacterLikeAnyOther) {
    EXPECT_EQ(ToCodePage(u"a"_s + QChar(u'\0') + u'b'), QByteArray("a\0b", 3));
    EXPECT_EQ(FromCodePage(QByteArray("a\0b", 3)), u"a"_s + QChar(u'\0') + u'b');
}

TEST(CodePageTest, EmptyTextIsNoBytes) {
    EXPECT_EQ(ToCodePage(QString()), QByteArray());
    EXPECT_EQ(FromCodePage(QByteArray()), QString());
}

TEST(CodePageTest, TextTellsWhetherTheCodePageHoldsIt) {
    EXPECT_TRUE(IsInCodePage(u"\u20ac 1\u2019250 caf\u00e9"_s));
    EXPECT_TRUE(IsInCodePage(QString()));
    EXPECT_FALSE(IsInCodePage(u"12 z\u0142"_s));
    EXPECT_FALSE(IsInCodePage(u"\u0661"_s));
}

TEST(CodePageTest, TextIsEncodedIntoTheRoomThereIs) {
    QByteArray room(6, '.');
    EXPECT_EQ(EncodeInto(room.data(), 4, u"Caf\u00e9 Mill"_s), 4U);
    EXPECT_EQ(room, "Caf\xe9..");
    EXPECT_EQ(EncodeInto(room.data(), 4, u"\u20ac \U0001f69a"_s), 3U);
    EXPECT_EQ(room, "\x80 ?\xe9..");
    EXPECT_EQ(EncodeInto(room.data(), 4, {}), 0U);
    EXPECT_EQ(room, "\x80 ?\xe9..");
}

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "MemorySettingsStore.h"
#include "settings/QSettingsStore.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::settings {
namespace {

// A store in a fresh folder of its own: the user's real settings are never
// touched.
class FileStore : public testing::Test {
protected:
    QString PathIn(const QString& name) const { return dir_.filePath(name); }
    QTemporaryDir dir_;
};

struct ValueCase {
    const char* name;
    QString value;
    friend void PrintTo(const ValueCase& c, std::ostream* os) { *os << c.name; }
};

class FileStoreValues : public FileStore, public testing::WithParamInterface<ValueCase> {};

TEST_P(FileStoreValues, ComeBackExactlyAsWritten) {
    const QString path = PathIn(u"Flickerscribe.conf"_s);
    {
        QSettingsStore store(path);
        store.WriteValue(u"Name"_s, GetParam().value);
    }
    // Another store on the same file: a later run of the program.
    const QSettingsStore again(path);
    EXPECT_EQ(again.ReadValue(u"Name"_s, u"default"_s), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(Tricky, FileStoreValues,
                         testing::Values(ValueCase{"Plain", u"Quillon"_s}, ValueCase{"Empty", QString()},
                                         ValueCase{"Blanks", u"  two  blanks  "_s},
                                         ValueCase{"Equals", u"a=b"_s}, ValueCase{"Semicolon", u"a;b"_s},
                                         ValueCase{"Hash", u"#not a comment"_s}, ValueCase{"Comma", u"a,b"_s},
                                         ValueCase{"CommaBlank", u"a, b,"_s},
                                         ValueCase{"Quotes", u"\"quoted\" 'x'"_s},
                                         ValueCase{"Backslashes", u"C:\\Games\\Brennock\\"_s},
                                         ValueCase{"Brackets", u"[QZT]Quillon"_s},
                                         ValueCase{"Carets", u"^1Fl^7ick"_s},
                                         ValueCase{"At", u"@Variant(x)"_s},
                                         ValueCase{"NonAscii", u"Zo\u00eb \u20ac \u00e9t\u00e9"_s},
                                         ValueCase{"Percent", u"100%20"_s}, ValueCase{"Tab", u"a\tb"_s}),
                         testing::PrintToStringParamName());

TEST_F(FileStore, ReadingNeitherCreatesTheFileNorItsFolder) {
    const QString path = PathIn(u"sub/Flickerscribe.conf"_s);
    const QSettingsStore store(path);
    EXPECT_EQ(store.ReadValue(u"OpenDir"_s), QString());
    EXPECT_EQ(store.ReadValue(u"OpenDir"_s, u"fallback"_s), u"fallback"_s);
    (void)LoadSettings(store);
    EXPECT_FALSE(QFileInfo::exists(path));
    EXPECT_FALSE(QFileInfo::exists(PathIn(u"sub"_s)));
}

TEST_F(FileStore, WritingCreatesFolderAndFile) {
    const QString path = PathIn(u"sub/Flickerscribe.conf"_s);
    QSettingsStore store(path);
    store.WriteValue(u"SaveDir"_s, u"/home/q"_s);
    EXPECT_TRUE(QFileInfo::exists(path));
}

TEST_F(FileStore, AnEmptyTextIsStoredNotDeleted) {
    QSettingsStore store(PathIn(u"s.conf"_s));
    store.WriteValue(u"Name"_s, u"x"_s);
    store.WriteValue(u"Name"_s, QString());
    EXPECT_EQ(store.ReadValue(u"Name"_s, u"default"_s), QString());
}

TEST_F(FileStore, ValuesAreSeparate) {
    QSettingsStore store(PathIn(u"s.conf"_s));
    store.WriteValue(u"OpenDir"_s, u"/a"_s);
    store.WriteValue(u"SaveDir"_s, u"/b"_s);
    store.WriteValue(u"GenerateDir"_s, u"/b"_s);
    store.WriteValue(u"OpenDir"_s, u"/c"_s);
    EXPECT_EQ(store.ReadValue(u"OpenDir"_s), u"/c"_s);
    EXPECT_EQ(store.ReadValue(u"SaveDir"_s), u"/b"_s);
}

struct HandEditedCase {
    const char* name;
    QByteArray line;
    QString expected;
    friend void PrintTo(const HandEditedCase& c, std::ostream* os) { *os << c.name; }
};

class HandEditedFile : public FileStore, public testing::WithParamInterface<HandEditedCase> {};

// A file written by hand or by another tool still reads as text.
TEST_P(HandEditedFile, ReadsAsText) {
    const QString path = PathIn(u"h.conf"_s);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[General]\n" + GetParam().line + "\n");
    file.close();
    const QSettingsStore store(path);
    EXPECT_EQ(store.ReadValue(u"Name"_s, u"default"_s), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Cases, HandEditedFile,
                         testing::Values(HandEditedCase{"Plain", "Name=Quillon", u"Quillon"_s},
                                         HandEditedCase{"BareComma", "Name=a,b", u"a,b"_s},
                                         HandEditedCase{"Missing", "Other=1", u"default"_s},
                                         HandEditedCase{"NotText", "Name=@Rect(1 2 3 4)", u"default"_s}),
                         testing::PrintToStringParamName());

// --- LoadSettings

struct FlagCase {
    const char* name;
    std::optional<QString> stored;  // nullopt: no such value
    bool expected;
    friend void PrintTo(const FlagCase& c, std::ostream* os) { *os << c.name; }
};

class FlagRule : public testing::TestWithParam<FlagCase> {};

TEST_P(FlagRule, OnlyTheExactTextOneIsTrue) {
    QMap<QString, QString> values;
    if (GetParam().stored) {
        values.insert(u"Reverse"_s, *GetParam().stored);
        values.insert(u"EditItem"_s, *GetParam().stored);
    }
    const MemorySettingsStore store(values);
    const Settings settings = LoadSettings(store);
    EXPECT_EQ(settings.reverse, GetParam().expected);
    EXPECT_EQ(settings.editInPlace, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, FlagRule,
    testing::Values(FlagCase{"One", u"1"_s, true}, FlagCase{"Zero", u"0"_s, false},
                    FlagCase{"True", u"true"_s, false}, FlagCase{"LeadingBlank", u" 1"_s, false},
                    FlagCase{"TrailingBlank", u"1 "_s, false}, FlagCase{"Eleven", u"11"_s, false},
                    FlagCase{"Empty", QString(), false}, FlagCase{"Missing", std::nullopt, false}),
    testing::PrintToStringParamName());

TEST(LoadSettings, ReadsEveryValueOnceInItsOrderAndKeepsTextsUnchanged) {
    const MemorySettingsStore store({{u"OpenDir"_s, u" /open "_s},
                                     {u"SaveDir"_s, u"/save"_s},
                                     {u"Name"_s, u"^1Quillon"_s},
                                     {u"Clantag"_s, u"[QZT]"_s},
                                     {u"Reverse"_s, u"1"_s},
                                     {u"EditItem"_s, u"0"_s},
                                     {u"GenerateDir"_s, u"/unused"_s}});
    const Settings s = LoadSettings(store);
    EXPECT_EQ(s.openFolder, u" /open "_s);
    EXPECT_EQ(s.saveFolder, u"/save"_s);
    EXPECT_EQ(s.name, u"^1Quillon"_s);
    EXPECT_EQ(s.clanTag, u"[QZT]"_s);
    EXPECT_TRUE(s.reverse);
    EXPECT_FALSE(s.editInPlace);
    EXPECT_EQ(store.Reads(), (QStringList{u"OpenDir"_s, u"SaveDir"_s, u"Name"_s, u"Clantag"_s, u"Reverse"_s,
                                          u"EditItem"_s}));
    EXPECT_FALSE(store.Written());
}

TEST(LoadSettings, AFirstRunHasEmptyTextsAndFlagsOff) {
    const MemorySettingsStore store;
    const Settings s = LoadSettings(store);
    EXPECT_EQ(s.openFolder, QString());
    EXPECT_EQ(s.saveFolder, QString());
    EXPECT_EQ(s.name, QString());
    EXPECT_EQ(s.clanTag, QString());
    EXPECT_FALSE(s.reverse);
    EXPECT_FALSE(s.editInPlace);
    EXPECT_FALSE(store.Written());
}

}  // namespace
}  // namespace flickerscribe::settings

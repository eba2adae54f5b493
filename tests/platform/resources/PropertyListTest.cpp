#include <tests/support/SourceDirectory.h>
#include <velmora/platform/resources/PropertyList.h>

#include <gtest/gtest.h>

#include <tests/platform/resources/TemporaryFolder.h>
#include <velmora/platform/system/FileReading.h>

namespace velmora {
namespace {

const std::filesystem::path listFolder = std::filesystem::path(sourceDirectory()) / "tests/data/resources";

/// An XML list around the given root.
std::string xml(const std::string& root) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n" + root + "\n</plist>\n";
}

std::string repeated(const std::string& text, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

/// A readable form of a value.
std::string described(const PropertyList& value) {
  if (value.text()) return "\"" + *value.text() + "\"";
  std::string text;
  if (value.array()) {
    for (const PropertyList& item : *value.array()) text += (text.empty() ? "" : ", ") + described(item);
    return "[" + text + "]";
  }
  if (value.dictionary()) {
    for (const auto& [key, item] : *value.dictionary()) {
      text += (text.empty() ? "" : ", ") + key + ": " + described(item);
    }
    return "{" + text + "}";
  }
  return "other";
}

std::string described(const std::optional<PropertyList>& list) { return list ? described(*list) : "none"; }

std::string read(const std::string& bytes) { return described(PropertyList::fromBytes(bytes)); }

TEST(PropertyList, ReadsDictionariesArraysAndTexts) {
  EXPECT_EQ(read(xml("<dict><key>1</key><array><string>4  03:30 LQ</string><string/></array>"
                     "<key>2</key><dict/><key>3</key><array></array></dict>")),
            "{1: [\"4  03:30 LQ\", \"\"], 2: {}, 3: []}");
}

TEST(PropertyList, ReadsEntitiesAndEveryScript) {
  EXPECT_EQ(
      read(xml("<array><string>a &amp; b &lt;c&gt; &#233;</string><string>\u6E80\u6708</string></array>")),
      "[\"a & b <c> \u00E9\", \"\u6E80\u6708\"]");
}

TEST(PropertyList, ValuesOfOtherKindsHaveNothingToAsk) {
  EXPECT_EQ(read(xml("<array><true/><integer>7</integer><real>0.5</real><data>QQ==</data>"
                     "<date>2024-03-25T07:00:00Z</date></array>")),
            "[other, other, other, other, other]");
}

TEST(PropertyList, OfAKeyThatStandsTwiceTheLastValueCounts) {
  EXPECT_EQ(read(xml("<dict><key>a</key><string>b</string><key>a</key><string>c</string></dict>")),
            "{a: \"c\"}");
}

TEST(PropertyList, ReadsTheBinaryFormAsTheXmlForm) {
  const auto binary = PropertyList::fromFile(listFolder / "table-binary.plist");
  const auto text = PropertyList::fromFile(listFolder / "table-xml.plist");
  EXPECT_EQ(described(binary), described(text));
  EXPECT_EQ(
      described(binary),
      "{1: [\"4  03:30 LQ\", \"11 11:57 NM\", \"18 03:53 FQ\", \"25 17:54 FM\"], name: \"\u6E80\u6708\"}");
}

TEST(PropertyList, MalformedBytesGiveNone) {
  for (const std::string& bytes :
       {std::string(), std::string("\0\0\0\0", 4), std::string("moon"), std::string("{ a = b; }"),
        std::string("<plist"), xml(""), xml("<dict><key>a</key>"), xml("<dict><string>a</string></dict>"),
        xml("<moon/>"), xml("<array><string>a</array>"), xml("<array>&moon;"), std::string("bplist00"),
        "bplist00" + std::string(32, '\0'), "bplist00" + std::string(32, '\xFF')}) {
    EXPECT_EQ(read(bytes), "none") << bytes;
  }
}

TEST(PropertyList, ATextThatIsNotUtf8IsNoText) {
  EXPECT_EQ(read(xml("<array><string>M\xE4rz</string><string>May</string></array>")), "[other, \"May\"]");
}

TEST(PropertyList, AFileCutShortAnywhereGivesNone) {
  for (const char* name : {"table-xml.plist", "table-binary.plist"}) {
    const std::string whole = readFile(listFolder / name).value();
    const std::size_t end = whole.find_last_not_of('\n') + 1;
    for (std::size_t size = 0; size < end; ++size) {
      ASSERT_EQ(read(whole.substr(0, size)), "none") << name << " cut to " << size << " bytes";
    }
    EXPECT_NE(read(whole), "none") << name;
  }
}

TEST(PropertyList, AnyOneByteChangedInABinaryFileIsReadOrRefused) {
  const std::string whole = readFile(listFolder / "table-binary.plist").value();
  int refused = 0;
  for (std::size_t i = 0; i < whole.size(); ++i) {
    for (const char byte : {'\0', '\x01', '\x7F', '\xA1', '\xD1', '\xFF'}) {
      std::string changed = whole;
      changed[i] = byte;
      if (!PropertyList::fromBytes(changed)) ++refused;
    }
  }
  EXPECT_GT(refused, 0);
}

TEST(PropertyList, NestingIsBounded) {
  const auto nested = [](int depth) { return xml(repeated("<array>", depth) + repeated("</array>", depth)); };
  EXPECT_NE(read(nested(1000)), "none");
  EXPECT_EQ(read(nested(100000)), "none");
  EXPECT_EQ(read(xml(repeated("<dict><key>a</key>", 30000))), "none");
  EXPECT_EQ(read(xml(repeated("<array><!--</array>-->", 30000))), "none");
}

/// A binary list of the given objects of less than 256 bytes in all, with references of one byte.
std::string binary(const std::vector<std::string>& objects) {
  std::string bytes = "bplist00";
  std::string offsets;
  for (const std::string& object : objects) {
    offsets += static_cast<char>(bytes.size());
    bytes += object;
  }
  const char table = static_cast<char>(bytes.size());
  const char count = static_cast<char>(objects.size());
  return bytes + offsets + std::string(6, '\0') + "\x01\x01" + std::string(7, '\0') + count +
         std::string(15, '\0') + table;
}

const std::string firstObject(1, '\0');

TEST(PropertyList, BinaryObjectsMayBeTextsInSeveralPlaces) {
  EXPECT_EQ(read(binary({"\xA2\x01\x01", "\x54moon"})), "[\"moon\", \"moon\"]");
  EXPECT_EQ(read(binary({"\xD1\x01\x02",
                         "\x51"
                         "a",
                         "\x62\x6E\x80\x67\x08"})),
            "{a: \"\u6E80\u6708\"}");
}

TEST(PropertyList, ABinaryListThatIsNoTreeGivesNone) {
  EXPECT_EQ(read(binary({"\xA1" + firstObject})), "none") << "holds itself";
  EXPECT_EQ(read(binary({"\xA1\x01", "\xA1" + firstObject})), "none") << "holds its holder";
  EXPECT_EQ(read(binary({"\xA1\x01", "\xA1\x02", "\xA1\x01"})), "none") << "a circle below the root";
  EXPECT_EQ(read(binary({"\xA1\x07"})), "none") << "no such object";
  std::vector<std::string> doubling;
  for (char next = 1; next <= 40; ++next) doubling.push_back({'\xA2', next, next});
  doubling.push_back("\x54moon");
  EXPECT_EQ(read(binary(doubling)), "none") << "expands to 2 to the 40th texts";
}

TEST(PropertyList, AKeyThatIsNoTextOrHoldsAZeroGivesNone) {
  EXPECT_EQ(read(binary({"\xD1\x01\x02", std::string("\x53m\0n", 4), "\x51x"})), "none");
  EXPECT_EQ(read(binary({"\xD1\x01\x02", std::string("\x61\0\0", 3), "\x51x"})), "none");
  EXPECT_EQ(read(binary({"\xD1\x01\x02", "\x10\x07", "\x51x"})), "none") << "a number";
  EXPECT_EQ(read(binary({"\xD1\x01\x02", "\x41m", "\x51x"})), "none") << "data";
  EXPECT_EQ(read(binary({"\xD1\x01\x02", "\xA0", "\x51x"})), "none") << "an array";
  EXPECT_EQ(read(xml("<dict><key>m&#0;n</key><string>x</string></dict>")), "none");
  EXPECT_EQ(read(xml("<dict><key>m" + std::string(1, '\0') + "n</key><string>x</string></dict>")), "none");
}

TEST(PropertyList, ALargeTextInManyPlacesGivesNone) {
  const std::size_t textSize = 300000, references = 300000;
  const auto bigEndian = [](std::size_t value, int bytes) {
    std::string text;
    for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8)
      text += static_cast<char>(value >> shift & 0xFF);
    return text;
  };
  std::string bytes = "bplist00\xAF\x12" + bigEndian(references, 4) + std::string(references, '\x01');
  const std::size_t textOffset = bytes.size();
  bytes += "\x5F\x12" + bigEndian(textSize, 4) + std::string(textSize, 'm');
  const std::size_t table = bytes.size();
  bytes += bigEndian(8, 4) + bigEndian(textOffset, 4) + std::string(6, '\0') + "\x04\x01" + bigEndian(2, 8) +
           bigEndian(0, 8) + bigEndian(table, 8);
  EXPECT_EQ(read(bytes), "none");
}

TEST(PropertyList, ASizeAboveAMebibyteGivesNone) {
  const std::string root = "<string>" + std::string(std::size_t{1} << 20, 'm') + "</string>";
  EXPECT_EQ(read(xml(root)), "none");
  EXPECT_NE(read(xml("<string>" + std::string(std::size_t{1} << 19, 'm') + "</string>")), "none");
}

TEST(PropertyList, WhatIsNoReadableFileGivesNone) {
  const TemporaryFolder folder;
  EXPECT_FALSE(PropertyList::fromFile(folder.path() / "missing.plist"));
  EXPECT_FALSE(PropertyList::fromFile(folder.path()));
  EXPECT_FALSE(PropertyList::fromFile(folder.write("empty.plist", "")));
}

}  // namespace
}  // namespace velmora

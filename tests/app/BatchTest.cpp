#include <filesystem>
#include <streambuf>

#include "AppTest.h"

namespace velmora::app {
namespace {

class BatchTest : public AppTest {
 protected:
  static std::vector<Json> answers(const std::string& lines, std::vector<std::string> options = {}) {
    options.insert(options.begin(), "batch");
    const Outcome outcome = runProgram(options, lines);
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    std::vector<Json> list;
    for (const std::string& line : linesOf(outcome.out)) list.push_back(jsonFromText(line));
    return list;
  }

  static std::string errorOf(const std::string& line) {
    const auto list = answers(line + "\n" + R"({"op": "today", "id": "next"})" + "\n");
    EXPECT_EQ(list.size(), 2U);
    EXPECT_TRUE(list.back().contains("result")) << "the line after " << line.substr(0, 80);
    return list.front().value("error", "no error");
  }
};

TEST_F(BatchTest, EachCommandAnswersAsOnTheCommandLine) {
  const auto list = answers(
      R"({"op": "riseset", "lat": -33.9, "lon": 151.2, "tz": "Australia/Sydney", "from": "2024-06-20", "to": "2024-06-22", "twilight": "nautical", "clock": "12h"})"
      "\n"
      R"({"op": "position", "city": "helsinki", "body": "sun", "date": "2024-06-20", "time": "10:30"})"
      "\n"
      R"({"op": "track", "gmt-offset": 19800, "date": "2024-06-20"})"
      "\n"
      R"({"op": "elevation", "degrees": -1, "body": "sun", "city": "Guayaquil"})"
      "\n"
      R"({"op": "today", "name": "Home", "locale": "fi_FI", "now": "2024-01-01T00:00:00Z"})"
      "\n");
  ASSERT_EQ(list.size(), 5U);
  EXPECT_EQ(list[0]["result"],
            json({"riseset", "--lat", "-33.9", "--lon", "151.2", "--tz", "Australia/Sydney", "--from",
                  "2024-06-20", "--to", "2024-06-22", "--twilight", "nautical", "--clock", "12h"}));
  EXPECT_EQ(list[1]["result"], json({"position", "--city", "helsinki", "--body", "sun", "--date",
                                     "2024-06-20", "--time", "10:30"}));
  EXPECT_EQ(list[2]["result"], json({"track", "--gmt-offset", "19800", "--date", "2024-06-20"}));
  EXPECT_EQ(list[3]["result"], json({"elevation", "-1", "--body", "sun", "--city", "Guayaquil"}));
  EXPECT_EQ(list[4]["result"],
            json({"today", "--name", "Home", "--locale", "fi_FI", "--now", "2024-01-01T00:00:00Z"}));
}

TEST_F(BatchTest, PhaseCommandsAnswerAsOnTheCommandLine) {
  const auto list = answers(R"({"op": "month", "month": "2024-03", "city": "Oslo", "24h": true})"
                            "\n"
                            R"({"op": "year", "year": 2024, "tz": "Asia/Tokyo", "locale": "ja_JP"})"
                            "\n"
                            R"({"op": "phases", "from": "2024-12-01", "to": "2025-01-31", "phase": "full"})"
                            "\n"
                            R"({"op": "next", "now": "2024-12-31T00:00:00Z"})"
                            "\n");
  ASSERT_EQ(list.size(), 4U);
  EXPECT_EQ(list[0]["result"], json({"month", "2024-03", "--city", "Oslo", "--24h"}));
  EXPECT_EQ(list[1]["result"], json({"year", "2024", "--tz", "Asia/Tokyo", "--locale", "ja_JP"}));
  EXPECT_EQ(list[2]["result"],
            json({"phases", "--from", "2024-12-01", "--to", "2025-01-31", "--phase", "full"}));
  EXPECT_EQ(list[3]["result"], json({"next", "--now", "2024-12-31T00:00:00Z"}));
}

TEST_F(BatchTest, AnswersKeepTheOrderAndTheIds) {
  const auto list = answers(R"({"op": "position", "id": 7})"
                            "\n"
                            R"({"id": "é", "op": "position", "lat": 91, "lon": 0})"
                            "\n"
                            R"({"op": "position"})"
                            "\n"
                            R"({"op": "position", "id": [1, {"a": 0.1}]})");
  ASSERT_EQ(list.size(), 4U);
  EXPECT_EQ(list[0]["id"], 7);
  EXPECT_EQ(list[1]["id"], "é");
  EXPECT_TRUE(list[1].contains("error"));
  EXPECT_FALSE(list[1].contains("result"));
  EXPECT_EQ(list[2]["id"], nullptr);
  EXPECT_EQ(list[3]["id"], jsonFromText(R"([1, {"a": 0.1}])"));
}

TEST_F(BatchTest, AnIdComesBackByteForByte) {
  for (const char* id : {"1.0", "1e2", "12345678901234567890123", "\"\\u00e9\\/ \\\"\"", "-0", "null",
                         R"({"b" : [1 , "}"], "id":2})", R"("a,b:{")", "true"}) {
    for (const std::string& line : {std::string(R"({"op": "next", "id" : )") + id + " }",
                                    std::string(R"({"id":)") + id + R"(,"op":"x"})",
                                    std::string(R"({"name": "\"id\":3", "op": "next", "id":)") + id + "}"}) {
      const std::string out = runProgram({"batch"}, line + "\n").out;
      EXPECT_EQ(out.substr(0, 6 + std::string(id).size() + 1), std::string(R"({"id":)") + id + ",") << line;
    }
  }
}

TEST_F(BatchTest, DrawsNothingWithoutAFolderForPictures) {
  EXPECT_EQ(errorOf(R"({"op": "draw", "view": "disc", "output": "/tmp/velmora-never.png"})"),
            "pictures are not drawn here; accepted by batch --pictures FOLDER");
  EXPECT_FALSE(std::filesystem::exists("/tmp/velmora-never.png"));
  EXPECT_NE(errorOf(R"({"op": "draw", "view": "disc", "output": "a.png", "pictures": "/tmp"})")
                .find("'pictures' is not an option of draw"),
            std::string::npos);
  EXPECT_EQ(runProgram({"batch", "--pictures", "/nonexistent"}).status, 2);
}

TEST_F(BatchTest, BlankLinesAreSkipped) {
  EXPECT_EQ(answers("\n  \n\t\r\n{\"op\": \"position\"}\r\n\n").size(), 1U);
  EXPECT_TRUE(answers("").empty());
}

TEST_F(BatchTest, AnUnreadableLineAnswersAnErrorWithoutId) {
  const auto list = answers("nonsense\n");
  ASSERT_EQ(list.size(), 1U);
  EXPECT_EQ(list[0]["id"], nullptr);
  EXPECT_NE(list[0]["error"].get<std::string>().find("not valid JSON"), std::string::npos);
}

TEST_F(BatchTest, BadLinesSayWhatIsWrongAndTheStreamGoesOn) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"{", "not valid JSON"},
      {"[]", "no JSON object"},
      {"null", "no JSON object"},
      {"{}", "op is missing"},
      {R"({"op": 1})", "op is not a text"},
      {R"({"op": "dance"})", "op 'dance' is not known"},
      {R"({"op": "batch"})", "op 'batch' is not known"},
      {R"({"op": "position", "colour": "red"})", "'colour' is not an option of position"},
      {R"({"op": "position", "twilight": "civil"})", "'twilight' is not an option of position"},
      {R"({"op": "position", "json": true})", "'json' is not an option of position"},
      {R"({"op": "position", "color": "never"})", "'color' is not an option of position"},
      {R"({"op": "position", "24h": "yes"})", "24h is neither true nor false"},
      {R"({"op": "position", "24h": true, "clock": "12h"})", "contradicts the clock chosen before"},
      {R"({"op": "position", "lat": "60"})", "lat '60' is a text and not a number"},
      {R"({"op": "position", "lat": 1e999, "lon": 1})", "number out of range"},
      {R"({"op": "position", "lat": 123456789012345678901234567890, "lon": 1})", "is out of range"},
      {R"({"op": "position", "lat": NaN, "lon": 1})", "not valid JSON"},
      {R"({"op": "position", "lat": null, "lon": 1})", "lat 'null' is not a number"},
      {R"({"op": "position", "city": "\u0000Rome"})", "holds control characters"},
      {R"({"op": "position", "name": "a\u009bb", "lat": 1, "lon": 2})", "holds control characters"},
      {R"({"op": "position", "city": 5})", "city '5' is not a text"},
      {R"({"op": "position", "city": ["Oslo"]})", "is not a text"},
      {R"({"op": "riseset", "transit": 1})", "neither true nor false"},
      {R"({"op": "place", "city": "Oslo"})", "op 'place' is not known"},
      {R"({"op": "track", "step": 0})", "step '0' is out of range; accepted: whole minutes from 1 to 1440"},
      {R"({"op": "riseset", "height": -1})", "height '-1' is out of range; accepted: 0 to 10000 metres"},
      {R"({"op": "riseset", "csv": true})", "'csv' is not an option of riseset"},
      {R"({"op": "elevation"})", "elevation is missing"},
      {R"({"op": "position", "date": "2023-02-29"})", "is not a date that exists"},
      {R"({"op": "riseset", "from": "2024-01-02", "to": "2024-01-01"})", "backwards"},
      {R"({"op": "month", "month": 3})", "month '3' is not a text"},
      {R"({"op": "month", "month": "2041-01"})",
       "month 2041-01 lies outside the phase tables; accepted: 2000-01 to 2040-12"},
      {R"({"op": "year", "year": "2024"})", "year '2024' is a text and not a number"},
      {R"({"op": "year", "year": 1999})", "year 1999 lies outside the phase tables"},
      {R"({"op": "year", "year": 1899})", "year '1899' is out of range"},
      {R"({"op": "phases", "from": "2100-12-31", "to": "2101-01-01"})", "to '2101-01-01' is out of range"},
      {R"({"op": "next", "now": "1900-01-01T00:00:00Z"})", "is not wholly known at the place"},
      {R"({"op": "position", "gmt-offset": 0.5})", "not a whole number"},
      {R"({"op": "position", "lat": 1, "lat": 2, "lon": 3})", "'lat' is given more than once"},
      {"\xff\xfe{}", "not valid JSON"},
      {"{\"op\": \"position\", \"city\": \"\xff\"}", "not valid JSON"},
      {std::string("{\"op\": \"posi\0tion\"}", 19), "not valid JSON"},
      {std::string("{\"op\": \"position\"}\0{\"op\"", 25), "not valid JSON at byte 19"},
  };
  for (const auto& [line, message] : cases) {
    const std::string error = errorOf(line);
    EXPECT_NE(error.find(message), std::string::npos) << line << " answers " << error;
  }
}

TEST_F(BatchTest, ALineOfTenMegabytesIsRefusedAndSkipped) {
  EXPECT_NE(errorOf(std::string(10'000'000, 'x')).find("too long"), std::string::npos);
  EXPECT_NE(
      errorOf(R"({"op": "position", "city": ")" + std::string(10'000'000, 'x') + "\"}").find("too long"),
      std::string::npos);
}

TEST_F(BatchTest, TheLongestLineIsOneByteShorterThanTheRefusedOne) {
  const std::string request = R"({"op": "position"})";
  const std::string longest = request + std::string(65'535 - request.size(), ' ');
  EXPECT_EQ(errorOf(longest), "no error");
  EXPECT_NE(errorOf(longest + " ").find("too long"), std::string::npos);
  EXPECT_TRUE(answers(longest).at(0).contains("result"));
}

TEST_F(BatchTest, DeepNestingIsRefused) {
  for (const auto& [open, close] : {std::pair("[", "]"), std::pair("{\"a\":", "}")}) {
    std::string opened, closed;
    for (int i = 0; i < 10'000; ++i) opened += open, closed += close;
    for (const std::string& deep : {opened + "1" + closed, opened}) {
      EXPECT_NE(errorOf(deep).find("nested too deeply"), std::string::npos);
      EXPECT_NE(errorOf(R"({"op": "position", "id": )" + deep + "}").find("nested too deeply"),
                std::string::npos);
    }
  }
}

TEST_F(BatchTest, MessagesQuoteAtMostEightyCharacters) {
  const std::string error = errorOf(R"({"op": "position", "city": ")" + std::string(60'000, 'x') + "\"}");
  EXPECT_LT(error.size(), 400U);
}

TEST_F(BatchTest, EachLineIsAnsweredAsIfItWereTheFirst) {
  const std::string plain = R"({"op": "today", "lat": 10, "lon": 20, "now": "2022-11-08T18:00:00Z"})";
  const std::vector<std::string> before = {
      R"({"op": "today", "clock": "24h", "locale": "fi_FI", "city": "Tokyo", "now": "2030-01-01T00:00:00Z"})",
      R"({"op": "today", "tz": "Asia/Kathmandu", "name": "Home"})",
      R"({"op": "eclipses", "year": 2030, "city": "Sydney", "locale": "de_DE"})",
      R"({"op": "today", "clock": "24h", "city": "nowhere to be found"})",
      "broken",
  };
  const Json alone = answers(plain + "\n").at(0);
  for (const std::string& line : before) EXPECT_EQ(answers(line + "\n" + plain + "\n").at(1), alone) << line;
}

TEST_F(BatchTest, EclipsesAndCalendarsAnswerAsOnTheCommandLine) {
  const auto list = answers(R"({"op": "eclipse", "city": "Tokyo", "date": "2022-11-08", "locale": "ja_JP"})"
                            "\n"
                            R"({"op": "eclipse", "city": "Paris", "date": "2022-11-08"})"
                            "\n"
                            R"({"op": "eclipses", "year": 2025, "city": "New York"})"
                            "\n"
                            R"({"op": "ics", "from": "2024-01-01", "to": "2024-03-31"})"
                            "\n"
                            R"({"op": "eclipses", "year": 1899})"
                            "\n");
  ASSERT_EQ(list.size(), 5U);
  EXPECT_EQ(list[0]["result"]["title"], "皆既月食");
  EXPECT_EQ(list[1]["result"]["isVisible"], false);
  EXPECT_EQ(list[2]["result"], json({"eclipses", "2025", "--city", "New York"}));
  EXPECT_EQ(list[3]["result"], json({"ics", "--from", "2024-01-01", "--to", "2024-03-31"}));
  EXPECT_EQ(list[4]["error"], "year '1899' is out of range; accepted: 1900 to 2100");
}

TEST_F(BatchTest, CoordinatesWithoutAZoneTakeTheProcessesOnEveryLine) {
  const ScopedDefaultTimeZone zone("Asia/Tokyo");
  const std::string plain = R"({"op": "today", "lat": 10, "lon": 20})";
  for (const Json& answer : answers(plain + "\n" + plain + "\n"))
    EXPECT_EQ(answer["result"]["place"]["timezone"], "Asia/Tokyo");
}

TEST_F(BatchTest, ItsOwnOptionsAreWhatEveryLineBeginsWith) {
  const auto list = answers("{\"op\": \"today\"}\n{\"op\": \"today\", \"clock\": \"12h\"}\n",
                            {"--now", "2030-01-01T20:00:00Z", "--24h"});
  EXPECT_EQ(list[0]["result"], json({"today", "--now", "2030-01-01T20:00:00Z", "--24h"}));
  EXPECT_EQ(list[1]["result"], json({"today", "--now", "2030-01-01T20:00:00Z", "--12h"}));
}

/// Input that is asked for only after the answer to the line before has been written out.
class Conversation : public std::streambuf {
 public:
  explicit Conversation(std::ostringstream& heard) : _heard(heard) {}

  bool wasAnsweredInTime() const { return _inTime; }

 protected:
  int_type underflow() override {
    if (_asked > 0 && linesOf(_heard.str()).size() != _asked) _inTime = false;
    if (_asked == 3) return traits_type::eof();
    ++_asked;
    setg(_line.data(), _line.data(), _line.data() + _line.size());
    return traits_type::to_int_type(_line.front());
  }

 private:
  std::ostringstream& _heard;
  std::string _line = "{\"op\": \"position\"}\n";
  std::size_t _asked = 0;
  bool _inTime = true;
};

TEST_F(BatchTest, WhoAsksLineByLineIsAnsweredLineByLine) {
  std::ostringstream out, err;
  Conversation conversation(out);
  std::istream in(&conversation);
  EXPECT_EQ(run({"batch"}, in, out, err), 0);
  EXPECT_TRUE(conversation.wasAnsweredInTime());
  EXPECT_EQ(linesOf(out.str()).size(), 3U);
}

TEST_F(BatchTest, AnUnreadableInputIsAFailure) {
  std::istringstream in("{\"op\": \"position\"}\n");
  in.setstate(std::ios::badbit);
  std::ostringstream out, err;
  EXPECT_EQ(run({"batch"}, in, out, err), 1);
  EXPECT_NE(err.str().find("standard input cannot be read"), std::string::npos);
}

TEST_F(BatchTest, AClosedOutputEndsItWithStatusOne) {
  std::istringstream in("{\"op\": \"position\"}\n{\"op\": \"position\"}\n");
  std::ostringstream out, err;
  out.setstate(std::ios::badbit);
  EXPECT_EQ(run({"batch"}, in, out, err), 1);
  EXPECT_EQ(out.str(), "");
  EXPECT_EQ(in.tellg(), std::istream::pos_type(0)) << "nothing more is read";
}

}  // namespace
}  // namespace velmora::app

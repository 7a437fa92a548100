// The desktop program's command line: its options, the order of the import
// chain, and what is refused with a usage message.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "desktop/desktop_options.h"

namespace ostraline {
namespace {

ParsedDesktopCommandLine Parse(const std::vector<std::string>& args) {
  return ParseDesktopCommandLine(args);
}

TEST(DesktopOptions, withoutOptionsTheProgramStartsAsBefore) {
  const ParsedDesktopCommandLine parsed = Parse({});
  EXPECT_EQ(parsed.error, "");
  EXPECT_FALSE(parsed.help || parsed.version || parsed.options.demo || parsed.options.duo);
  EXPECT_EQ(parsed.options.files.model, "");
  EXPECT_EQ(parsed.options.screenshot, "");
}

TEST(DesktopOptions, helpAndVersionEndTheReadingWhereverTheyStand) {
  EXPECT_TRUE(Parse({"--help"}).help);
  EXPECT_TRUE(Parse({"-h", "--no-such-option"}).help);
  EXPECT_TRUE(Parse({"--demo", "--version", "stray"}).version);
  const ParsedDesktopCommandLine late = Parse({"--no-such-option", "--version"});
  EXPECT_FALSE(late.version);
  EXPECT_EQ(late.error, "unknown option --no-such-option");
  // The usage shown on an error is the head of the help.
  EXPECT_EQ(DesktopHelpText().rfind(DesktopUsage(), 0), 0u);
}

TEST(DesktopOptions, eachFileOptionFillsItsOwnFieldWithOrWithoutEquals) {
  const ParsedDesktopCommandLine parsed =
      Parse({"--model", "m.csv", "--events=e.csv", "--ages", "a.csv", "--varves=v.csv",
             "--duo-model", "dm.csv", "--duo-events", "de.csv", "--duo-ages=da.csv", "--duo-varves",
             "dv.csv", "--screenshot", "shot.png"});
  ASSERT_EQ(parsed.error, "");
  const ProjectFiles& files = parsed.options.files;
  EXPECT_EQ(files.model, "m.csv");
  EXPECT_EQ(files.events, "e.csv");
  EXPECT_EQ(files.ages, "a.csv");
  EXPECT_EQ(files.varves, "v.csv");
  EXPECT_EQ(files.duoModel, "dm.csv");
  EXPECT_EQ(files.duoEvents, "de.csv");
  EXPECT_EQ(files.duoAges, "da.csv");
  EXPECT_EQ(files.duoVarves, "dv.csv");
  EXPECT_EQ(parsed.options.screenshot, "shot.png");
  EXPECT_FALSE(parsed.options.demo);

  // A value that looks like an option is still the value.
  EXPECT_EQ(Parse({"--model", "--demo"}).options.files.model, "--demo");
  const ParsedDesktopCommandLine demo = Parse({"--duo", "--screenshot=a=b.png", "--demo"});
  EXPECT_EQ(demo.error, "");
  EXPECT_TRUE(demo.options.demo && demo.options.duo);
  EXPECT_EQ(demo.options.screenshot, "a=b.png");
}

TEST(DesktopOptions, filesNamedOutOfTheChainsOrderAreRefused) {
  const struct {
    std::vector<std::string> args;
    std::string errorStart;
  } cases[] = {
      {{"--events", "e.csv"}, "--events needs --model"},
      {{"--model", "m.csv", "--ages", "a.csv"}, "--ages needs --events"},
      {{"--model", "m.csv", "--events", "e.csv", "--varves", "v.csv"}, "--varves needs --ages"},
      {{"--model", "m.csv", "--duo-model", "d.csv"}, "--duo-model needs --events"},
      {{"--model", "m.csv", "--events", "e.csv", "--duo-events", "d.csv"},
       "--duo-events, --duo-ages and --duo-varves need --duo-model"},
      {{"--model", "m.csv", "--events", "e.csv", "--duo-varves", "d.csv"},
       "--duo-events, --duo-ages and --duo-varves need --duo-model"},
      {{"--duo"}, "--duo needs --demo"},
      {{"--demo", "--model", "m.csv"}, "--demo and --model exclude each other"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Parse(c.args).error.rfind(c.errorStart, 0), 0u)
        << c.args.front() << ": " << Parse(c.args).error;
  }
  // The whole chain, the Duo with its event list only, is in order.
  EXPECT_EQ(Parse({"--model", "m", "--events", "e", "--duo-model", "d", "--duo-events", "f"}).error,
            "");
}

TEST(DesktopOptions, wrongWordsAreUsageErrors) {
  EXPECT_EQ(Parse({"--modell", "m.csv"}).error, "unknown option --modell");
  EXPECT_EQ(Parse({"-x"}).error, "unknown option -x");
  // A flag takes no value.
  EXPECT_EQ(Parse({"--demo=yes"}).error, "unknown option --demo");
  EXPECT_EQ(Parse({"--model"}).error, "--model needs a value");
  EXPECT_EQ(Parse({"--demo", "--screenshot"}).error, "--screenshot needs a value");
  EXPECT_EQ(Parse({"--model="}).error, "invalid value '' for --model");
  EXPECT_EQ(Parse({"model.csv"}).error.rfind("unexpected argument 'model.csv'", 0), 0u);
}

}  // namespace
}  // namespace ostraline

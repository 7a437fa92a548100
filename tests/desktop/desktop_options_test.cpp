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

TEST(DesktopOptions, noneSetsNothingAndHelpOrVersionEndTheReadingWhereverTheyStand) {
  // Without options the program starts as before.
  const ParsedDesktopCommandLine none = Parse({});
  EXPECT_EQ(none.error, "");
  EXPECT_FALSE(none.help || none.version || none.options.demo || none.options.duo);
  EXPECT_EQ(none.options.files.model + none.options.screenshot, "");

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
  const ProjectFiles& f = parsed.options.files;
  EXPECT_EQ((std::vector<std::string>{f.model, f.events, f.ages, f.varves, f.duoModel, f.duoEvents,
                                      f.duoAges, f.duoVarves, parsed.options.screenshot}),
            (std::vector<std::string>{"m.csv", "e.csv", "a.csv", "v.csv", "dm.csv", "de.csv",
                                      "da.csv", "dv.csv", "shot.png"}));
  EXPECT_FALSE(parsed.options.demo);

  // A value that looks like an option is still the value.
  EXPECT_EQ(Parse({"--model", "--demo"}).options.files.model, "--demo");
  const ParsedDesktopCommandLine demo = Parse({"--duo", "--screenshot=a=b.png", "--demo"});
  EXPECT_EQ(demo.error, "");
  EXPECT_TRUE(demo.options.demo && demo.options.duo);
  EXPECT_EQ(demo.options.screenshot, "a=b.png");
  // The whole chain, the Duo with its event list only, is in order.
  EXPECT_EQ(Parse({"--model", "m", "--events", "e", "--duo-model", "d", "--duo-events", "f"}).error,
            "");
}

// Wrong words, and files named out of the chain's order; an error is
// compared up to the reason that follows its colon.
TEST(DesktopOptions, wrongWordsAndFilesOutOfTheChainsOrderAreRefused) {
  const struct {
    std::vector<std::string> args;
    std::string error;
  } cases[] = {
      {{"--modell", "m.csv"}, "unknown option --modell"},
      {{"-x"}, "unknown option -x"},
      {{"--demo=yes"}, "unknown option --demo"},  // a flag takes no value
      {{"--model"}, "--model needs a value"},
      {{"--demo", "--screenshot"}, "--screenshot needs a value"},
      {{"--model="}, "invalid value '' for --model"},
      {{"model.csv"}, "unexpected argument 'model.csv'"},
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
    const std::string error = Parse(c.args).error;
    EXPECT_EQ(error.substr(0, error.find(':')), c.error) << c.args.front() << ": " << error;
  }
}

}  // namespace
}  // namespace ostraline

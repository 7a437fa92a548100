#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "cli/progress_display.h"
#include "core/project_state.h"
#include "forms/frm_conversion.h"
#include "forms/frm_main.h"
#include "support/age_files.h"
#include "support/model_files.h"

namespace ostraline {
namespace {

namespace fs = std::filesystem;

// A record that spans no pair of control points: the ages stay linear in EFD.
const std::vector<std::pair<std::string, std::string>> kVarves = {
    {"120", "10"}, {"125", "20"}, {"130", "30"}};
const char* const kPositions =
    "Sample,Hole,Section,PSP\r\nS1,A,01,30\r\nS2,Bore hole A,01,46\r\nS3,A,02,30\r\n";

const std::string kHeader =
    "\"Sample\",\"Hole\",\"Section\",\"PSP\",\"Composite depth (correlation model: version 05 Mar. "
    "2011)\"";

struct Outcome {
  int status;
  std::string errors;
};

// Passes when `text` holds `part`, and shows the text when it does not.
::testing::AssertionResult Holds(const std::string& text, const std::string& part) {
  if (text.find(part) != std::string::npos) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "no '" << part << "' in:\n" << text;
}

// A file of positions of `rows` samples, all at A-01 PSP 30.
std::string ManyPositions(int rows) {
  std::string text = "Sample,Hole,Section,PSP\r\n";
  for (int i = 0; i < rows; ++i) text += "S" + std::to_string(i) + ",A,01,30\r\n";
  return text;
}

class ConvertCommand : public FreshProgram {
 protected:
  void SetUp() override {
    FreshProgram::SetUp();
    const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
    folder = fs::temp_directory_path() / "ostraline-cli-tests" / info->name();
    fs::remove_all(folder);
    fs::create_directories(folder);
    Write("model_20110305.csv", ModelText(TwoSectionModel()));
    Write("events_20110401.csv", kFusedLayer);
    Write("ages_20120101.csv", AgeModelText(kThreeControlPoints));
    Write("varves_20130201.csv", VarveText(kVarves));
    Write("samples.csv", kPositions);
  }

  std::string Path(const std::string& name) const { return (folder / name).string(); }
  void Write(const std::string& name, const std::string& text) const {
    std::ofstream(Path(name), std::ios::binary) << text;
  }
  std::string Read(const std::string& name) const { return FileContents(Path(name)); }

  // Runs the program in the folder; names without a slash are its files.
  Outcome Convert(const std::string& arguments) const {
    const std::string errors = Path("stderr.txt");
    const std::string command = "cd '" + folder.string() + "' && '" + OSTRALINE_CONVERT + "' " +
                                arguments + " > stdout.txt 2> '" + errors + "'";
    const int raw = std::system(command.c_str());
    return {WIFEXITED(raw) ? WEXITSTATUS(raw) : -1, Read("stderr.txt")};
  }

  fs::path folder;
};

TEST_F(ConvertCommand, ConvertsThroughTheWholeImportChain) {
  const Outcome run = Convert(
      "--model model_20110305.csv --events events_20110401.csv --ages ages_20120101.csv "
      "--varves varves_20130201.csv samples.csv out.csv");
  EXPECT_EQ(run.status, 0) << run.errors;
  EXPECT_EQ(run.errors, "");
  EXPECT_EQ(
      Read("out.csv"),
      kHeader +
          ",\"Event free depth (event list: version 01 Apr. 2011)\",\"Age (age model: version "
          "01 Jan. 2012)\",\"Age 95.4 % error (+)\",\"Age 68.2 % error (-)\",\"Age unit\"\r\n"
          "\"S1\",\"A\",\"01\",\"30\",135,135,900,9,19,\"cal BP\"\r\n"
          "\"S2\",\"Bore hole A\",\"01\",\"46\",155,150,1200,12,22,\"cal BP\"\r\n"
          "\"S3\",\"A\",\"02\",\"30\",240,230,2800,36,38,\"Hybrid unit\"\r\n");
}

TEST_F(ConvertCommand, ChoicesOfTheCommandLine) {
  // PSP 0 lies 10 below the first tie: 97.5 cm by proportion, 100 cm one to one.
  Write("samples.csv", "Sample,Hole,Section,PSP\r\nS0,A,01,0\r\nS1,A,01,31\r\n");
  // Values taken for another scale than the header says.
  Write("values.csv", "Sample,Depth\r\nV1,135\r\nV2,151\r\nV3,240\r\n");
  const struct {
    const char* arguments;
    std::string written;
  } runs[] = {
      {"--model model_20110305.csv --to composite --depth-digits 1 samples.csv out.csv",
       kHeader + "\r\n\"S0\",\"A\",\"01\",\"0\",97.5\r\n\"S1\",\"A\",\"01\",\"31\",136.2\r\n"},
      {"--model=model_20110305.csv --extrapolation one-to-one samples.csv out.csv",
       kHeader + "\r\n\"S0\",\"A\",\"01\",\"0\",100\r\n\"S1\",\"A\",\"01\",\"31\",136.25\r\n"},
      {"--model model_20110305.csv --events events_20110401.csv --from composite --to efd "
       "values.csv out.csv",
       "\"Sample\",\"Depth\",\"Event free depth (event list: version 01 Apr. 2011)\"\r\n"
       "\"V1\",\"135\",135\r\n\"V2\",\"151\",150\r\n\"V3\",\"240\",230\r\n"},
  };
  for (const auto& [arguments, written] : runs) {
    const Outcome run = Convert(arguments);
    EXPECT_EQ(run.status, 0) << arguments << "\n" << run.errors;
    EXPECT_EQ(Read("out.csv"), written) << arguments;
  }
}

// An age-depth model made for another model version: declined unless asked,
// and the output that was there stays.
TEST_F(ConvertCommand, AgesOfAnotherModelVersionAreDeclinedUnlessAsked) {
  Write("out.csv", "old rows\r\n");
  Write("other_ages.csv", AgeModelText(kThreeControlPoints, {"Composite depth (06 Mar. 2011)"}));
  const std::string withOtherAges =
      "--model model_20110305.csv --events events_20110401.csv --ages other_ages.csv ";
  Outcome run = Convert(withOtherAges + "samples.csv out.csv");
  EXPECT_EQ(run.status, 1);
  EXPECT_TRUE(Holds(run.errors, "WARNING!!: Version dates are inconsistent"));
  EXPECT_EQ(Read("out.csv"), "old rows\r\n");
  run = Convert(withOtherAges + "--ignore-version-mismatch samples.csv out.csv");
  EXPECT_EQ(run.status, 0) << run.errors;
  EXPECT_TRUE(Holds(Read("out.csv"), "\"S1\",\"A\",\"01\",\"30\",135,135,900,9,19,\"cal BP\""));
}

TEST_F(ConvertCommand, WrongCommandLinesExitWithTwo) {
  for (const char* arguments :
       {"", "samples.csv out.csv", "--model model_20110305.csv samples.csv",
        "--model model_20110305.csv --frobnicate samples.csv out.csv",
        "--model model_20110305.csv --to composite,depth samples.csv out.csv",
        "--model model_20110305.csv --depth-digits 5 samples.csv out.csv",
        "--model model_20110305.csv --ages ages_20120101.csv samples.csv out.csv",
        "--model model_20110305.csv samples.csv out.csv --from",
        "--model model_20110305.csv --duo-model model_20110305.csv samples.csv out.csv",
        "--model model_20110305.csv --events events_20110401.csv --duo samples.csv out.csv"}) {
    const Outcome run = Convert(arguments);
    EXPECT_EQ(run.status, 2) << arguments;
    EXPECT_TRUE(Holds(run.errors, "--help")) << arguments;
  }
  EXPECT_FALSE(fs::exists(Path("out.csv")));
  EXPECT_EQ(Convert("--help").status, 0);
  EXPECT_TRUE(Holds(Read("stdout.txt"), "--ignore-version-mismatch"));
}

// The program drives the forms as a user does: its file is the one the
// desktop program writes for the same files and choices.
TEST_F(ConvertCommand, SameBytesAsTheForms) {
  ASSERT_EQ(Convert("--model model_20110305.csv --events events_20110401.csv --ages "
                    "ages_20120101.csv --to composite,age --age-digits 1 samples.csv out.csv")
                .status,
            0);
  platform.QueueFile(Path("model_20110305.csv"));
  frmMain->Command1_Click();
  AgePrecision = 1;
  platform.QueueFile(Path("events_20110401.csv"));
  frmMain->Command3_Click();
  platform.QueueFile(Path("ages_20120101.csv"));
  frmMain->Command4_Click();
  platform.QueueFile(Path("samples.csv"));
  frmMain->Command2_Click();
  frmConversion->Check1(4).Value = 0;
  platform.QueueFile(Path("forms.csv"));
  frmConversion->Command1_Click();
  ASSERT_TRUE(platform.messages.empty());
  EXPECT_EQ(Read("out.csv"), Read("forms.csv"));
  EXPECT_TRUE(Holds(Read("out.csv"), "\"Age unit\"\r\n"));
}

// The sample project's parallel set, converted both ways with the values of
// samples/EXPECTED.md: by the Duo's form and by the master's with the Duo open.
TEST_F(ConvertCommand, DuoSamplesBothWays) {
  const std::string samples = std::string(OSTRALINE_SAMPLES) + "/";
  const std::string master = "--model " + samples + "correlation_model_20250314.csv --events " +
                             samples + "event_layers_20250320.csv --duo-model " + samples +
                             "duo_correlation_model_20250610.csv ";
  const std::string project = master + "--duo-events " + samples + "duo_event_layers_20250612.csv ";
  const std::string positions = samples + "duo_positions.csv ";
  Outcome run = Convert(project + "--duo " + positions + "out.csv");
  EXPECT_EQ(run.status, 0) << run.errors;
  EXPECT_EQ(Read("out.csv"),
            "\"Sample\",\"Bore hole\",\"Section\",\"PSP (cm)\",\"Composite depth (correlation "
            "model: version 10 Jun. 2025)\",\"Composite depth (Ostra A-D)\",\"Event free depth "
            "(event list: version 12 Jun. 2025)\"\r\n"
            "\"DU-001\",\"E\",\"02\",\"75.5\",227.5,229.36,224\r\n"
            "\"DU-002\",\"Core 9\",\"03\",\"12.25\",391.25,396.22,387.75\r\n"
            "\"DU-003\",\"A\",\"05\",\"76.1\",624.14,638.26,614.64\r\n"
            "\"DU-004\",\"E\",\"01\",\"9999\",9999,9999,\"9999\"\r\n"
            "\"DU-005\",\"X\",\"01\",\"5\",9999,9999,9999\r\n");
  run = Convert(project + positions + "out.csv");
  EXPECT_EQ(run.status, 0) << run.errors;
  EXPECT_TRUE(Holds(Read("out.csv"),
                    "\"DU-001\",\"E\",\"02\",\"75.5\",229.36,227.04\r\n"
                    "\"DU-002\",\"Core 9\",\"03\",\"12.25\",396.22,388.48\r\n"
                    "\"DU-003\",\"A\",\"05\",\"76.1\",638.27,621.3\r\n"));
  run = Convert(project + "--duo --to composite,efd " + samples +
                "duo_values_composite_depth.csv out.csv");
  EXPECT_EQ(run.status, 0) << run.errors;
  EXPECT_EQ(Read("out.csv"),
            "\"Sample\",\"Composite depth (cm)\",\"Composite depth (Ostra A-D)\",\"Event free "
            "depth (event list: version 12 Jun. 2025)\"\r\n"
            "\"DCD-001\",\"120.5\",119.6,120.5\r\n\"DCD-002\",\"640\",654.66,630.5\r\n"
            "\"DCD-003\",\"1333.3\",1371.98,1321.3\r\n\"DCD-004\",9999,9999,9999\r\n");

  // Declining the Duo's event list leaves its age import closed: refused.
  run = Convert(master + "--duo-ages " + samples + "age_depth_model_20250402.csv --duo " +
                positions + "out2.csv");
  EXPECT_EQ(run.status, 2) << run.errors;
  EXPECT_TRUE(Holds(run.errors, "refused"));
  EXPECT_FALSE(fs::exists(Path("out2.csv")));
}

bool LeftoverIn(const fs::path& folder) {
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (entry.path().filename().string().rfind(".ostraline-", 0) == 0) return true;
  }
  return false;
}

// No run loses a file: an output that is an input under another name is
// refused, a link keeps pointing at its file, a replaced file keeps its
// permissions, a long name works, a read-only output needs --force, and a
// signal in the middle of writing leaves nothing behind.
TEST_F(ConvertCommand, TheOutputIsReplacedWithoutLosingAFile) {
  const std::string chain = "--model model_20110305.csv --events events_20110401.csv ";
  Outcome run = Convert(chain + "samples.csv ./samples.csv");
  EXPECT_EQ(run.status, 2);
  EXPECT_TRUE(Holds(run.errors, "same file"));
  fs::create_hard_link(Path("model_20110305.csv"), Path("linked.csv"));
  EXPECT_EQ(Convert(chain + "samples.csv linked.csv").status, 2);
  EXPECT_EQ(Read("samples.csv"), kPositions);

  Write("kept.csv", "old");
  fs::permissions(Path("kept.csv"), fs::perms::owner_read | fs::perms::owner_write);
  fs::create_symlink("kept.csv", Path("link.csv"));
  run = Convert(chain + "samples.csv link.csv");
  EXPECT_EQ(run.status, 0) << run.errors;
  EXPECT_TRUE(fs::is_symlink(Path("link.csv")));
  EXPECT_EQ(Read("kept.csv").rfind(kHeader, 0), 0u);
  EXPECT_EQ(fs::status(Path("kept.csv")).permissions() & fs::perms::all,
            fs::perms::owner_read | fs::perms::owner_write);

  const std::string longName(250, 'n');
  EXPECT_EQ(Convert(chain + "samples.csv " + longName).status, 0);
  EXPECT_EQ(Read(longName), Read("kept.csv"));

  Write("locked.csv", "old");
  fs::permissions(Path("locked.csv"), fs::perms::owner_read);
  if (access(Path("locked.csv").c_str(), W_OK) != 0) {  // root may write anyway
    run = Convert(chain + "samples.csv locked.csv");
    EXPECT_EQ(run.status, 2);
    EXPECT_TRUE(Holds(run.errors, "--force"));
    EXPECT_EQ(Read("locked.csv"), "old");
  }
  EXPECT_EQ(Convert(chain + "--force samples.csv locked.csv").status, 0);
  EXPECT_EQ(Read("locked.csv"), Read("kept.csv"));
  EXPECT_EQ(fs::status(Path("locked.csv")).permissions() & fs::perms::all, fs::perms::owner_read);
  EXPECT_FALSE(LeftoverIn(folder));

  // A long file, and SIGTERM while its conversion is being written.
  Write("big.csv", ManyPositions(200000));
  Write("out.csv", "old");
  const std::string model = Path("model_20110305.csv"), input = Path("big.csv"),
                    output = Path("out.csv");
  const pid_t child = fork();
  if (child == 0) {
    execl(OSTRALINE_CONVERT, OSTRALINE_CONVERT, "--model", model.c_str(), input.c_str(),
          output.c_str(), static_cast<char*>(nullptr));
    _exit(127);
  }
  bool writing = false;
  for (int wait = 0; wait < 60000 && !writing; ++wait) {
    writing = LeftoverIn(folder);
    if (!writing) usleep(1000);
  }
  kill(child, SIGTERM);
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_TRUE(writing);
  EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGTERM);
  EXPECT_FALSE(LeftoverIn(folder));
  EXPECT_EQ(Read("out.csv"), "old");
}

TEST_F(ConvertCommand, EveryFailureSaysWhereAndWhy) {
  const auto modelWith = [](const std::string& cell) {
    auto model = TwoSectionModel();
    model[2].holes[1] = cell;
    return ModelText(model);
  };
  const std::string whole = ModelText(TwoSectionModel());
  auto points = kThreeControlPoints;
  points[0][1] = "Z";
  const std::string chain = "--model model_20110305.csv ";
  const std::string ages = chain + "--events events_20110401.csv --ages ";
  Write("model_abc.csv", modelWith("abc"));
  Write("model_cut.csv", whole.substr(0, whole.rfind(',', whole.rfind(',') - 1)));
  Write("events_cut.csv", std::string(kFusedLayer) + "A,02,10");
  Write("ages_z.csv", AgeModelText(points));
  Write("varves_big.csv", VarveText({{"120", "10"}, {"125", "1e40"}}));
  Write("short.csv", "Sample,Hole\r\nS1,A\r\n");
  Write("model_esc.csv", modelWith("\x1b[31m"));
  Write("values.csv", "Sample,Age\r\nT1,2400\r\nT2,1200\r\nT3,900\r\n");
  // The arguments, and what the errors say.
  const std::pair<std::string, std::vector<std::string>> cases[] = {
      {"--model missing.csv samples.csv out.csv", {"missing.csv"}},
      {chain + "values.csv out.csv", {"Please import list of events."}},
      // A scale the files cannot give.
      {chain + "--to age samples.csv out.csv", {"--to age"}},
      {"--model model_abc.csv samples.csv out.csv",
       {"Error: File format error.\nostraline-convert: correlation model model_abc.csv: not "
        "imported\nostraline-convert: model_abc.csv: line 3, field 3: 'abc' is not a number\n"}},
      {"--model model_cut.csv samples.csv out.csv",
       {"model_cut.csv: line 9: the file ends inside a record: 12 of its 14 fields are there"}},
      {chain + "--events events_cut.csv samples.csv out.csv",
       {"events_cut.csv: line 4: the file ends inside a record: 3 of its 5 fields"}},
      {ages + "ages_z.csv samples.csv out.csv",
       {"Bore hole name 'Z' has not been defined.",
        "ages_z.csv: line 2, field 2: 'Z' is no bore hole of the correlation models imported"}},
      {ages + "ages_20120101.csv --varves varves_big.csv samples.csv out.csv",
       {"varves_big.csv: line 3, field 2: '1e40' is beyond the range of a Single"}},
      {chain + "short.csv out.csv",
       {"short.csv: Error: File format error.",
        "short.csv: line 2: the file ends where a further field was expected"}},
      // The system's reason for an output.
      {chain + "samples.csv no/such/folder/out.csv", {"No such file or directory"}},
      // Nothing of a file steers the terminal (checked for every case).
      {"--model model_esc.csv samples.csv out.csv", {"'\\x1b[31m' is not a number"}},
  };
  for (const auto& [arguments, said] : cases) {
    const Outcome run = Convert(arguments);
    EXPECT_EQ(run.status, 1) << arguments;
    EXPECT_EQ(run.errors.find('\x1b'), std::string::npos) << run.errors;
    for (const std::string& part : said) EXPECT_TRUE(Holds(run.errors, part)) << arguments;
  }
  // No failure leaves an output behind.
  EXPECT_FALSE(fs::exists(Path("out.csv")));
}

TEST_F(ConvertCommand, WarningsLeaveOutputAndStatusAlone) {
  const std::string chain = "--model model_20110305.csv --events events_20110401.csv ";
  Write("odd.csv", "Sample,Hole,Section,PSP\r\nS1,A,01,30\r\nS2,A,01,abc\r\nS3,A,01,\"\"\r\n");
  Outcome run = Convert(chain + "odd.csv out.csv");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.errors,
            "ostraline-convert: warning: odd.csv: line 3, field 4: PSP 'abc' is no number and "
            "reads as 0\nostraline-convert: warning: odd.csv: line 4, field 4: PSP '' is no "
            "number and reads as 0\n");
  const std::string warned = Read("out.csv");
  run = Convert(chain + "--quiet odd.csv out.csv");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.errors, "");
  EXPECT_EQ(Read("out.csv"), warned);

  Write("values.csv", "Sample,Composite depth\r\nV1,135\r\nV2,151.0\r\nV3,240\r\n");
  EXPECT_TRUE(Holds(Convert(chain + "values.csv out.csv").errors,
                    "values.csv: line 3, field 2: '151.0' is not written as a plain number, so "
                    "the file was read as a file of positions"));

  std::string many = "Sample,Hole,Section,PSP\r\n";
  for (int row = 0; row < 7; ++row) many += "S,A,01,x\r\n";
  Write("many.csv", many);
  run = Convert(chain + "many.csv out.csv");
  EXPECT_TRUE(Holds(run.errors, "line 6, field 4: PSP 'x'"));
  EXPECT_EQ(run.errors.find("line 7, field 4"), std::string::npos) << run.errors;
  EXPECT_TRUE(Holds(run.errors, "and 2 more PSPs that are no number"));

  Write("wide.csv", "Sample,Hole,Section,PSP\r\nS1,A,01,30,x\r\nS2,A,01\r\n");
  EXPECT_TRUE(Holds(Convert(chain + "wide.csv out.csv").errors,
                    "wide.csv: line 2 has 5 fields: a file of positions has four"));
}

TEST_F(ConvertCommand, ALargeFileShowsItsProgressOnATerminalOnly) {
  Write("big.csv", ManyPositions(120000));
  // script gives the program a terminal and keeps what it wrote there.
  const std::string command = "--model model_20110305.csv big.csv out.csv";
  const std::string onTerminal = "cd '" + folder.string() + "' && script -qec \"'" +
                                 OSTRALINE_CONVERT + "' " + command +
                                 "\" terminal.txt >/dev/null 2>&1 </dev/null";
  EXPECT_EQ(std::system(onTerminal.c_str()), 0);
  const std::string shown = Read("terminal.txt");
  EXPECT_TRUE(Holds(shown, " of 120,000 rows"));
  const std::string converted = Read("out.csv");
  const Outcome inPipe = Convert(command);
  EXPECT_EQ(inPipe.status, 0);
  EXPECT_EQ(inPipe.errors, "");
  EXPECT_EQ(Read("out.csv"), converted);
}

TEST(ProgressLine, TellsTheRateAndTheTimeLeftOnceMeasured) {
  EXPECT_EQ(cli::ProgressLine(0, 1000000, 0), "[........................] 0 of 1,000,000 rows");
  EXPECT_EQ(cli::ProgressLine(412000, 1000000, 0.1),
            "[#########...............] 412,000 of 1,000,000 rows");
  EXPECT_EQ(cli::ProgressLine(412000, 1000000, 0.5),
            "[#########...............] 412,000 of 1,000,000 rows, 824,000 rows/s, 1 s left");
  EXPECT_EQ(cli::ProgressLine(1000000, 1000000, 2),
            "[########################] 1,000,000 of 1,000,000 rows, 500,000 rows/s, 0 s left");
}

}  // namespace
}  // namespace ostraline

#include "runtime/field_reader.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "runtime/failure.h"

namespace ostraline {
namespace {

bool FailsPastEnd(auto statement) {
  try {
    statement();
  } catch (const RuntimeFailure& failure) {
    return failure.Kind() == FailureKind::InputPastEnd;
  }
  return false;
}

// Reads rows of the given number of text fields while the end-of-file test
// between rows allows, as every import does.
std::vector<std::vector<std::string>> ReadRows(const std::string& content, int fields) {
  FieldReader reader(content);
  std::vector<std::vector<std::string>> rows;
  while (!reader.Eof()) {
    std::vector<std::string>& row = rows.emplace_back();
    for (int f = 0; f < fields; ++f) row.push_back(reader.ReadText());
  }
  return rows;
}

using Rows = std::vector<std::vector<std::string>>;

TEST(FieldReaderTest, quotedFieldsHoldCommasAndLineEnds) {
  FieldReader reader("\"a,b\",\"line\r\nbreak\",\"x\ny\"\r\n\"\",\"q\"  ,z\n");
  EXPECT_EQ(reader.ReadText(), "a,b");
  EXPECT_EQ(reader.ReadText(), "line\r\nbreak");
  EXPECT_EQ(reader.ReadText(), "x\ny");
  EXPECT_EQ(reader.ReadText(), "");
  EXPECT_EQ(reader.ReadText(), "q");
  EXPECT_EQ(reader.ReadText(), "z");
  EXPECT_TRUE(reader.Eof());

  // What stands between the closing quote and the delimiter is skipped.
  FieldReader after("\"ab\"cd,e\r\n\"f\" g h\r\ni\r\n");
  EXPECT_EQ(after.ReadText(), "ab");
  EXPECT_EQ(after.ReadText(), "e");
  EXPECT_EQ(after.ReadText(), "f");
  EXPECT_EQ(after.ReadText(), "i");
  EXPECT_TRUE(after.Eof());

  // A quote inside an unquoted field is data; an unclosed quote runs to the end.
  FieldReader inner("ab\"c,\"open,to\nthe end");
  EXPECT_EQ(inner.ReadText(), "ab\"c");
  EXPECT_EQ(inner.ReadText(), "open,to\nthe end");
  EXPECT_TRUE(inner.Eof());
}

TEST(FieldReaderTest, emptyFieldsAndWhatStandsAheadOfAField) {
  FieldReader text("a,,b,\"\",c\r\n");
  EXPECT_EQ(text.ReadText(), "a");
  EXPECT_EQ(text.ReadText(), "");
  EXPECT_EQ(text.ReadText(), "b");
  EXPECT_EQ(text.ReadText(), "");
  EXPECT_EQ(text.ReadText(), "c");

  FieldReader numbers("1.5,,2,abc\r\n");
  EXPECT_EQ(numbers.ReadSingle(), 1.5f);
  EXPECT_EQ(numbers.ReadSingle(), 0.0f);
  EXPECT_EQ(numbers.ReadSingle(), 2.0f);
  EXPECT_EQ(numbers.ReadSingle(), 0.0f);
  EXPECT_TRUE(numbers.Eof());

  // Blanks, tabs and line ends ahead of a field are skipped; blanks inside stay.
  FieldReader blanks("  \t a b ,\t\r\n\r\n  c\n\n\n\"d\"");
  EXPECT_EQ(blanks.ReadText(), "a b ");
  EXPECT_EQ(blanks.ReadText(), "c");
  EXPECT_EQ(blanks.ReadText(), "d");
  EXPECT_TRUE(blanks.Eof());

  // A comma before a line end gives no empty field: the line end stands ahead
  // of the next field and is skipped.
  FieldReader trailing("a,\r\nb\r\n");
  EXPECT_EQ(trailing.ReadText(), "a");
  EXPECT_EQ(trailing.ReadText(), "b");
  EXPECT_TRUE(trailing.Eof());
}

TEST(FieldReaderTest, fieldsIgnoreWhereLinesEnd) {
  // A row with a field missing pulls it from the next line, and every later row shifts.
  EXPECT_EQ(ReadRows("1,2\r\n3,4,5\r\n6\r\n", 3), (Rows{{"1", "2", "3"}, {"4", "5", "6"}}));
  // CR, LF and CRLF all end a line, and may be mixed.
  EXPECT_EQ(ReadRows("a,b\rc,d\ne,f\r\ng,h", 2),
            (Rows{{"a", "b"}, {"c", "d"}, {"e", "f"}, {"g", "h"}}));
  // A file without a line end after its last row ends all the same.
  EXPECT_EQ(ReadRows("a,b", 2), (Rows{{"a", "b"}}));
  EXPECT_EQ(ReadRows("", 2), Rows{});
}

TEST(FieldReaderTest, readingPastTheLastFieldFails) {
  FieldReader reader("1,2\r\n");
  reader.ReadText();
  reader.ReadText();
  EXPECT_TRUE(FailsPastEnd([&] { reader.ReadText(); }));
  EXPECT_TRUE(FailsPastEnd([&] { reader.ReadSingle(); }));
  EXPECT_TRUE(FailsPastEnd([&] { reader.ReadVariant(); }));
  EXPECT_TRUE(FailsPastEnd([] { FieldReader("").ReadText(); }));
  FieldReader comma("1,");
  comma.ReadText();
  EXPECT_TRUE(FailsPastEnd([&] { comma.ReadText(); }));

  // The row the missing field was pulled into fails at its end.
  EXPECT_TRUE(FailsPastEnd([] { ReadRows("1,2\r\n3,4,5\r\n", 3); }));
  // End of file is tested between rows only: a blank line after the last row
  // makes one more row, and its reading fails.
  EXPECT_TRUE(FailsPastEnd([] { ReadRows("1,2\r\n3,4\r\n\r\n", 2); }));
  EXPECT_TRUE(FailsPastEnd([] { ReadRows("1,2\n3,4\n  \n", 2); }));
  EXPECT_TRUE(FailsPastEnd([] { ReadRows("1,2\r\n\r", 2); }));

  // The failure tells where the reader stood, whatever the line ends.
  for (const char* content : {"a\r\nb\r\n\r\n", "a\nb\n\n", "a\rb\r\r"}) {
    FieldReader lines(content);
    lines.ReadText();
    lines.ReadText();
    try {
      lines.ReadText();
      ADD_FAILURE() << "no failure";
    } catch (const RuntimeFailure& failure) {
      EXPECT_EQ(failure.Detail(), "line 4") << failure.what();
    }
  }
}

TEST(FieldReaderTest, singleAndVariantTargets) {
  FieldReader reader("12.5,-3e2, 7 ,1.5abc,\"2.5\",text,,\"\"\r\n");
  EXPECT_EQ(reader.ReadSingle(), 12.5f);
  EXPECT_EQ(reader.ReadSingle(), -300.0f);
  EXPECT_EQ(reader.ReadSingle(), 7.0f);
  EXPECT_EQ(reader.ReadSingle(), 1.5f);
  // A quoted number is still a number to a Single.
  EXPECT_EQ(reader.ReadSingle(), 2.5f);
  EXPECT_EQ(reader.ReadSingle(), 0.0f);
  EXPECT_EQ(reader.ReadSingle(), 0.0f);
  EXPECT_EQ(reader.ReadSingle(), 0.0f);
  EXPECT_TRUE(reader.Eof());

  FieldReader variants("12.5, 7 ,1.5abc,\"2.5\",text,,\"\",-1E-05\r\n");
  const Variant number = variants.ReadVariant();
  EXPECT_TRUE(number.IsNumber());
  EXPECT_EQ(number.ToDouble(), 12.5);
  const Variant padded = variants.ReadVariant();
  EXPECT_TRUE(padded.IsNumber());
  EXPECT_EQ(padded.ToDouble(), 7.0);
  const Variant mixed = variants.ReadVariant();
  EXPECT_TRUE(mixed.IsText());
  EXPECT_EQ(mixed.ToText(), "1.5abc");
  const Variant quoted = variants.ReadVariant();
  EXPECT_TRUE(quoted.IsText());
  EXPECT_EQ(quoted.ToText(), "2.5");
  const Variant word = variants.ReadVariant();
  EXPECT_TRUE(word.IsText());
  EXPECT_EQ(word.ToText(), "text");
  const Variant empty = variants.ReadVariant();
  EXPECT_EQ(empty.ToDouble(), 0.0);
  EXPECT_EQ(empty.ToText(), "");
  const Variant quotedEmpty = variants.ReadVariant();
  EXPECT_TRUE(quotedEmpty.IsText());
  EXPECT_EQ(quotedEmpty.ToText(), "");
  EXPECT_EQ(variants.ReadVariant().ToDouble(), -1e-5);
  EXPECT_TRUE(variants.Eof());
}

TEST(FieldReaderTest, openReadsTheFileAsItIs) {
  EXPECT_THROW(FieldReader::Open("/nonexistent/folder/model.csv"), RuntimeFailure);
  const std::filesystem::path path =
      std::filesystem::path(testing::TempDir()) / "field_reader_open_test.csv";
  {
    std::ofstream out(path, std::ios::binary);
    out << "\"x\",1.25\r\n";
    out.put('\0');
    out << "y,2\r\n";
  }
  FieldReader reader = FieldReader::Open(path.string());
  EXPECT_EQ(reader.ReadText(), "x");
  EXPECT_EQ(reader.ReadSingle(), 1.25f);
  EXPECT_EQ(reader.ReadText(), std::string("\0y", 2));
  EXPECT_EQ(reader.ReadSingle(), 2.0f);
  EXPECT_TRUE(reader.Eof());
  std::filesystem::remove(path);
}

TEST(FieldWriterTest, textQuotedNumbersBareRowsEndInCrLf) {
  FieldWriter writer;
  writer.Text("A-01");
  writer.Number(12.5);
  writer.Value(Variant());
  writer.Number(0.1f);
  writer.Value(Variant("7"));
  writer.Value(Variant(-0.25));
  writer.EndRow();
  writer.Number(1e-5);
  writer.Text("");
  writer.EndRow();
  EXPECT_EQ(writer.Content(), "\"A-01\",12.5,,0.1,\"7\",-0.25\r\n1E-05,\"\"\r\n");

  // What is written reads back field by field.
  FieldReader reader(writer.Content());
  EXPECT_EQ(reader.ReadText(), "A-01");
  EXPECT_EQ(reader.ReadSingle(), 12.5f);
  EXPECT_TRUE(reader.ReadVariant().IsEmpty());
  EXPECT_EQ(reader.ReadSingle(), 0.1f);
  EXPECT_TRUE(reader.ReadVariant().IsText());
  EXPECT_EQ(reader.ReadVariant().ToDouble(), -0.25);
  EXPECT_EQ(reader.ReadSingle(), 1e-5f);
  EXPECT_EQ(reader.ReadText(), "");
  EXPECT_TRUE(reader.Eof());
}

}  // namespace
}  // namespace ostraline

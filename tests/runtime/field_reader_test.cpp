#include "runtime/field_reader.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <utility>
#include <vector>

#include "runtime/failure.h"
#include "support/failures.h"
#include "support/model_files.h"

namespace ostraline {
namespace {

constexpr std::optional<FailureKind> kPastEnd = FailureKind::InputPastEnd;

using Rows = std::vector<std::vector<std::string>>;
using Texts = std::vector<std::string>;

// Reads rows of the given number of text fields while the end-of-file test
// between rows allows, as every import does.
Rows ReadRows(const std::string& content, int fields) {
  FieldReader reader(content);
  Rows rows;
  while (!reader.Eof()) {
    std::vector<std::string>& row = rows.emplace_back();
    for (int f = 0; f < fields; ++f) row.push_back(reader.ReadText());
  }
  return rows;
}

// Every field of the content read by `read` until the end-of-file test says so.
template <class T>
std::vector<T> ReadAll(const std::string& content, T (FieldReader::*read)()) {
  FieldReader reader(content);
  std::vector<T> fields;
  while (!reader.Eof()) fields.push_back((reader.*read)());
  return fields;
}

// Every field of the content read as a variant, as its kind and its text.
Texts Variants(const std::string& content) {
  Texts described;
  for (const Variant& value : ReadAll(content, &FieldReader::ReadVariant)) {
    described.push_back(value.IsEmpty() ? "empty"
                                        : (value.IsText() ? "text " : "number ") + value.ToText());
  }
  return described;
}

TEST(FieldReaderTest, quotesEmptyFieldsAndWhatStandsAheadOfAField) {
  const std::pair<const char*, Texts> cases[] = {
      {"\"a,b\",\"line\r\nbreak\",\"x\ny\"\r\n\"\",\"q\"  ,z\n",
       {"a,b", "line\r\nbreak", "x\ny", "", "q", "z"}},
      // What stands between the closing quote and the delimiter is skipped.
      {"\"ab\"cd,e\r\n\"f\" g h\r\ni\r\n", {"ab", "e", "f", "i"}},
      // A quote inside an unquoted field is data; an unclosed quote runs to the end.
      {"ab\"c,\"open,to\nthe end", {"ab\"c", "open,to\nthe end"}},
      {"a,,b,\"\",c\r\n", {"a", "", "b", "", "c"}},
      // Blanks, tabs and line ends ahead of a field are skipped; blanks inside stay.
      {"  \t a b ,\t\r\n\r\n  c\n\n\n\"d\"", {"a b ", "c", "d"}},
      // A comma before a line end gives no empty field: the line end stands
      // ahead of the next field and is skipped.
      {"a,\r\nb\r\n", {"a", "b"}}};
  for (const auto& [content, fields] : cases) {
    EXPECT_EQ(ReadAll(content, &FieldReader::ReadText), fields) << content;
  }
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
  EXPECT_EQ(FailureOf([&] { reader.ReadText(); }), kPastEnd);
  EXPECT_EQ(FailureOf([&] { reader.ReadSingle(); }), kPastEnd);
  EXPECT_EQ(FailureOf([&] { reader.ReadVariant(); }), kPastEnd);

  EXPECT_EQ(FailureOf([] { FieldReader("").ReadText(); }), kPastEnd);
  FieldReader comma("1,");
  comma.ReadText();
  EXPECT_EQ(FailureOf([&] { comma.ReadText(); }), kPastEnd);

  // The row the missing field was pulled into fails at its end.
  EXPECT_EQ(FailureOf([] { ReadRows("1,2\r\n3,4,5\r\n", 3); }), kPastEnd);
  // End of file is tested between rows only: a blank line after the last row
  // makes one more row, and its reading fails.
  EXPECT_EQ(FailureOf([] { ReadRows("1,2\r\n3,4\r\n\r\n", 2); }), kPastEnd);
  EXPECT_EQ(FailureOf([] { ReadRows("1,2\n3,4\n  \n", 2); }), kPastEnd);
  EXPECT_EQ(FailureOf([] { ReadRows("1,2\r\n\r", 2); }), kPastEnd);

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
  // A quoted number is still a number to a Single, but text to a variant.
  EXPECT_EQ(ReadAll("12.5,-3e2, 7 ,1.5abc,\"2.5\",text,,\"\"\r\n", &FieldReader::ReadSingle),
            (std::vector<float>{12.5f, -300, 7, 1.5f, 2.5f, 0, 0, 0}));
  EXPECT_EQ(Variants("12.5, 7 ,1.5abc,\"2.5\",text,,\"\",-1E-05\r\n"),
            (Texts{"number 12.5", "number 7", "text 1.5abc", "text 2.5", "text text", "empty",
                   "text ", "number -1E-05"}));
  EXPECT_EQ(ReadAll("-1E-05", &FieldReader::ReadVariant).at(0).ToDouble(), -1e-5);
}

TEST(FieldReaderTest, openReadsTheFileAsItIs) {
  EXPECT_THROW(FieldReader::Open("/nonexistent/folder/model.csv"), RuntimeFailure);
  FieldReader reader =
      FieldReader::Open(WriteTempFile("open.csv", std::string("\"x\",1.25\r\n\0y,2\r\n", 16)));
  EXPECT_EQ(reader.ReadText(), "x");
  EXPECT_EQ(reader.ReadSingle(), 1.25f);
  EXPECT_EQ(reader.ReadText(), std::string("\0y", 2));
  EXPECT_EQ(reader.ReadSingle(), 2.0f);
  EXPECT_TRUE(reader.Eof());
}

// A file read a chunk at a time gives what the whole text gives: every field,
// its place, the end-of-file test and the line of a failure, whatever the
// size of the chunks and wherever they cut a field or a line end.
TEST(FieldReaderTest, aFileReadInChunksReadsAsTheWholeText) {
  std::mt19937 draw(20261123);
  const char alphabet[] = {'a', '1', '.', ',', ',', '"', ' ', '\t', '\r', '\n', '\n'};
  for (int round = 0; round < 300; ++round) {
    std::string content;
    const int length = static_cast<int>(draw() % 60);
    for (int i = 0; i < length; ++i) content += alphabet[draw() % sizeof alphabet];
    const std::string path = WriteTempFile("chunks.csv", content);
    for (std::size_t chunk : {1u, 2u, 3u, 7u}) {
      SCOPED_TRACE(content + " chunk " + std::to_string(chunk));
      FieldReader whole(content);
      FieldReader chunked = FieldReader::Open(path, chunk);
      while (true) {
        ASSERT_EQ(whole.Eof(), chunked.Eof());
        std::string wholeText;
        std::string chunkedText;
        const auto wholeField = FailureOf([&] { wholeText = whole.ReadText(); });
        ASSERT_EQ(wholeField, FailureOf([&] { chunkedText = chunked.ReadText(); }));
        ASSERT_EQ(wholeText, chunkedText);
        ASSERT_EQ(whole.Line(), chunked.Line());
        if (wholeField) break;
        ASSERT_EQ(whole.LastPlace().line, chunked.LastPlace().line);
        ASSERT_EQ(whole.LastPlace().field, chunked.LastPlace().field);
      }
    }
  }
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
  EXPECT_EQ(Variants(std::string(writer.Content())),
            (Texts{"text A-01", "number 12.5", "empty", "number 0.1", "text 7", "number -0.25",
                   "number 1E-05", "text "}));
}

}  // namespace
}  // namespace ostraline

#include "events/converted_row_writer.h"

#include <gtest/gtest.h>

#include <string>

#include "events/batch_output_file.h"
#include "runtime/variant_table.h"
#include "support/model_files.h"

namespace ostraline {
namespace {

// Cells of a table given first, between, last, side by side or alone in a
// row come out where they were given, whether a second thread writes the
// rows or not, over many batches of rows.
TEST(ConvertedRowWriter, tableCellsComeOutWhereTheyWereGiven) {
  constexpr long kRows = 5000;
  VariantTable table;
  table.Dim({{0, 2}, {0, kRows}});
  for (long r = 0; r <= kRows; ++r) {
    table.SetText(0, r, "t" + std::to_string(r));
    table.Set(1, r, Variant(static_cast<float>(r) / 4));
    table.SetText(2, r, "a long text of row " + std::to_string(r));
  }
  const auto write = [&](bool inBackground) {
    const std::string path = WriteTempFile("converted_rows.csv", "");
    {
      ReplacementFile out(path);
      ConvertedRowWriter rows(out, inBackground);
      for (long r = 0; r <= kRows; ++r) {
        switch (r % 4) {
          case 0:
            rows.Cells(table, r, 0, 2);
            rows.Number(1.5f);
            break;
          case 1:
            rows.Text("x");
            rows.Cells(table, r, 1, 1);
            rows.Cells(table, r, 0, 0);
            rows.Number(2.25);
            break;
          case 2:
            rows.Value(Variant(static_cast<int>(r)));
            rows.Cells(table, r, 2, 2);
            break;
          default:
            if (r % 8 == 7) rows.Cells(table, r, 0, 1);
        }
        rows.EndRow();
      }
      rows.Finish();
      out.Commit();
    }
    return FileContents(path);
  };
  const std::string atOnce = write(false);
  const std::string first =
      "\"t0\",0,\"a long text of row 0\",1.5\r\n\"x\",0.25,\"t1\",2.25\r\n"
      "2,\"a long text of row 2\"\r\n\r\n\"t4\",1,\"a";
  EXPECT_EQ(atOnce.substr(0, first.size()), first);
  EXPECT_NE(atOnce.find("\r\n\"t7\",1.75\r\n"), std::string::npos);
  EXPECT_EQ(write(true), atOnce);
}

}  // namespace
}  // namespace ostraline

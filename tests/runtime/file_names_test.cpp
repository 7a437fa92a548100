#include "runtime/file_names.h"

#include <gtest/gtest.h>

namespace ostraline {
namespace {

TEST(FileNamesTest, versionDateFromEightDigitsOrAMonthNameElseTheName) {
  EXPECT_EQ(VersionDate("C:\\cores\\model_20110305.csv"), "05 Mar. 2011");
  EXPECT_EQ(VersionDate("/home/lake/model20111231.csv"), "31 Dec. 2011");
  EXPECT_EQ(VersionDate("20110501.csv"), "01 May 2011");
  // A date in a folder's name dates the file by the folder.
  EXPECT_EQ(VersionDate("C:\\models\\20120704\\model.csv"), "04 Jul. 2012");
  EXPECT_EQ(VersionDate("/data/20120704/model_20130101.csv"), "04 Jul. 2012");
  // Month digits that name no month come back as the eight characters, and
  // the search ends there even when a good date follows.
  EXPECT_EQ(VersionDate("D:\\cores\\model20111305.csv"), "20111305");
  EXPECT_EQ(VersionDate("x20110005_20110101.csv"), "20110005");
  // Fewer than eight digits, or digits broken by a blank, are no date.
  EXPECT_EQ(VersionDate("/data/model 2011035 v.csv"), "model 2011035 v");
  // Any eight characters that read as a number count, digits or not.
  EXPECT_EQ(VersionDate("/data/model 2011035.csv"), "5. Mar. 2011");
  EXPECT_EQ(VersionDate("/data/2011 0305.csv"), "2011 0305");
  // A run too large for any number does not read as one.
  EXPECT_EQ(VersionDate("C:\\m\\1E999999.csv"), "1E999999");

  // A month's name, when no eight digits make a date.
  EXPECT_EQ(VersionDate("C:\\models\\model 31 Jan. 2011.csv"), "31 Jan. 2011");
  EXPECT_EQ(VersionDate("/models/Co1234 14 Oct. 2009 final.csv"), "14 Oct. 2009");
  // May has no dot after it.
  EXPECT_EQ(VersionDate("C:\\models\\model 31 May 2011.csv"), "31 May 2011");
  // The month's name is matched in its exact case.
  EXPECT_EQ(VersionDate("C:\\models\\model 31 jan. 2011.csv"), "model 31 jan. 2011");
  // Digits win over a month's name.
  EXPECT_EQ(VersionDate("/m/20100102 model 31 Jan. 2011.csv"), "02 Jan. 2010");

  // Else the stem.
  EXPECT_EQ(VersionDate("C:\\data\\cores\\model.csv"), "model");
  EXPECT_EQ(VersionDate("/home/lake/data/model v2.csv"), "model v2");
  EXPECT_EQ(VersionDate("C:\\data/mixed\\model.csv"), "model");
  // Only ".csv" in this case is cut.
  EXPECT_EQ(VersionDate("C:\\data\\Model.CSV"), "Model.CSV");
  // Without a folder there is no stem: the whole name stands.
  EXPECT_EQ(VersionDate("model.csv"), "model.csv");
  EXPECT_EQ(VersionDate(""), "");
}

TEST(FileNamesTest, fileStemDropsFolderAndExtension) {
  EXPECT_EQ(FileStem("C:\\data\\cores\\model.csv"), "model");
  EXPECT_EQ(FileStem("/home/lake/photos/A-01.jpg"), "A-01");
  EXPECT_EQ(FileStem("C:\\v1.2\\model 31 Jan. 2011.csv"), "model 31 Jan. 2011");
  EXPECT_EQ(FileStem("model.csv"), "model");
  EXPECT_EQ(FileStem("\\x.csv"), "x");
  EXPECT_EQ(FileStem("abc"), "");
  EXPECT_EQ(FileStem(""), "");
}

TEST(FileNamesTest, sectionFromLabel) {
  EXPECT_EQ(SectionFromLabel("A-01-top"), "01");
  EXPECT_EQ(SectionFromLabel("01 top"), "top");
  EXPECT_EQ(SectionFromLabel("A-01"), "01");
  EXPECT_EQ(SectionFromLabel("B 12-3"), "12");
  EXPECT_EQ(SectionFromLabel("A01"), "A01");
  EXPECT_EQ(SectionFromLabel("A-"), "A");
  EXPECT_EQ(SectionFromLabel("A--x"), "");
  EXPECT_EQ(SectionFromLabel(""), "");
}

}  // namespace
}  // namespace ostraline

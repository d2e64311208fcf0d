#include <gtest/gtest.h>

#include "base/fault.h"
#include "catalog/catalog.h"
#include "screen/form.h"
#include "tests/screen/recording_ports.h"

namespace {

using screen::Kind;

// A screen with one control, laid out with a caption and a tip and the ids that replace them.
class CatalogueWalk : public ::testing::Test {
 protected:
  screen::ControlState After(Kind kind, const std::string& tag, const std::string& tip) {
    screen::Form form("Form", ports_.ports);
    screen::Control control(form, kind, "Control");
    control.text = "design caption";
    control.tip = "design tip";
    control.tag = tag;
    control.toolTipText = tip;
    screen::ApplyCatalogue(form);
    return control;
  }

  recording::Ports ports_;
};

const Kind kCaptioned[] = {Kind::Label, Kind::CommandButton, Kind::Frame, Kind::CheckBox,
                           Kind::OptionButton};

TEST_F(CatalogueWalk, LabelsButtonsFramesAndBoxesTakeCaptionAndTipByTheirIds) {
  for (const Kind kind : kCaptioned) {
    const screen::ControlState state = After(kind, "80", "81");
    EXPECT_EQ(state.text, "Start");
    EXPECT_EQ(state.tip, "Identification of the exposure data");
  }
}

TEST_F(CatalogueWalk, ATagOf0OrEmptyLeavesTheDesignCaption) {
  for (const Kind kind : kCaptioned)
    for (const char* tag : {"0", "", "text", "-80"})
      EXPECT_EQ(After(kind, tag, "81").text, "design caption") << "tag \"" << tag << '"';
}

TEST_F(CatalogueWalk, ANonNumericToolTipTextReadsAs0SoTheTipBecomesEmpty) {
  for (const Kind kind : kCaptioned)
    for (const char* tip : {"press here", "0", "", "-81", "x81"})
      EXPECT_EQ(After(kind, "80", tip).tip, "") << "tool tip text \"" << tip << '"';
}

TEST_F(CatalogueWalk, AnIdIsReadAsTheNumberAtTheStartOfTheText) {
  EXPECT_EQ(After(Kind::Label, " 80 ", "81 tip").text, "Start");
  EXPECT_EQ(After(Kind::Label, " 80 ", "81 tip").tip, "Identification of the exposure data");
}

TEST_F(CatalogueWalk, AFieldKeepsItsTextAndTakesOnlyTheTip) {
  EXPECT_EQ(After(Kind::TextBox, "80", "81").text, "design caption");
  EXPECT_EQ(After(Kind::TextBox, "80", "81").tip, "Identification of the exposure data");
  EXPECT_EQ(After(Kind::TextBox, "80", "none").tip, "");
}

TEST_F(CatalogueWalk, AComboBoxTakesTextAndTipByTheirIds) {
  EXPECT_EQ(After(Kind::ComboBox, "330", "332").text, "Reference period");
  EXPECT_EQ(After(Kind::ComboBox, "330", "332").tip, "OELV reference period");
}

TEST_F(CatalogueWalk, AMenuItemTakesItsCaptionAndKeepsItsTip) {
  EXPECT_EQ(After(Kind::Menu, "30", "81").text, "&File");
  EXPECT_EQ(After(Kind::Menu, "30", "81").tip, "design tip");
}

TEST_F(CatalogueWalk, AFileDialogTakesItsTitle) {
  EXPECT_EQ(After(Kind::CommonDialog, "904", "").text, "Open a *. VKR file from disk");
  EXPECT_EQ(After(Kind::CommonDialog, "0", "").text, "design caption");
}

TEST_F(CatalogueWalk, TabStripsGridsAndStepButtonsAreUntouched) {
  for (const Kind kind : {Kind::TabStrip, Kind::Grid, Kind::UpDown}) {
    EXPECT_EQ(After(kind, "80", "81").text, "design caption");
    EXPECT_EQ(After(kind, "80", "81").tip, "design tip");
  }
}

TEST_F(CatalogueWalk, AnIdWithoutTextIsAFault) {
  EXPECT_THROW(After(Kind::Label, "18", ""), RunTimeError);
  EXPECT_THROW(After(Kind::TextBox, "", "18"), RunTimeError);
}

TEST_F(CatalogueWalk, AScreenTakesItsCaptionByItsOwnTag) {
  screen::Form form("Form", ports_.ports);
  form.caption = "design caption";
  screen::ApplyCatalogue(form);
  EXPECT_EQ(form.caption, "design caption");
  form.captionTag = "1500";
  screen::ApplyCatalogue(form);
  EXPECT_EQ(form.caption, "Raw data");
}

TEST_F(CatalogueWalk, EveryControlOfTheScreenIsVisitedAndItsIdsStay) {
  screen::Form form("Form", ports_.ports);
  screen::Control first(form, Kind::Label, "DimLbl(0)");
  screen::Control last(form, Kind::CommandButton, "Continue");
  first.tag = "303";
  last.tag = "96";
  screen::ApplyCatalogue(form);
  EXPECT_EQ(first.text, LoadResString(303));
  EXPECT_EQ(last.text, "Continue");
  EXPECT_EQ(last.tag, "96");
}

}  // namespace

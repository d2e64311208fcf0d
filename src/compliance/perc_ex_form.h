#pragma once

#include <deque>
#include <optional>
#include <string>

#include "compliance/compliance_tests.h"
#include "compliance/sample_size.h"
#include "navigation/session_form.h"

namespace compliance {

// Colour and sign of a verdict's words; neither without a verdict.
void ColourVerdict(screen::Control& label, std::optional<bool> compliance);

// The compliance screen: the tests of the population's upper percentile against the limit value.
struct PercExForm final : navigation::SessionForm {
  PercExForm(Record& sessionRecord, navigation::Desk& programDesk, screen::Ports& formPorts);

  screen::Control Frame2{*this, screen::Kind::Frame, "Frame2"};
  screen::Control NameLbl{*this, screen::Kind::Label, "NameLbl"};
  screen::Control SampSizLbl0{*this, screen::Kind::Label, "SampSizLbl(0)"};
  screen::Control SampSizLbl{*this, screen::Kind::Label, "SampSizLbl"};
  screen::Control DegreesLbl0{*this, screen::Kind::Label, "DegreesLbl(0)"};
  screen::Control DegreesLbl{*this, screen::Kind::Label, "DegreesLbl"};
  screen::Control GMLbl0{*this, screen::Kind::Label, "GMLbl(0)"};
  screen::Control GMLbl{*this, screen::Kind::Label, "GMLbl"};
  screen::Control DimLbl0{*this, screen::Kind::Label, "DimLbl(0)"};
  screen::Control GSDLbl0{*this, screen::Kind::Label, "GSDLbl(0)"};
  screen::Control GSDLbl{*this, screen::Kind::Label, "GSDLbl"};
  screen::Control DimLbl1{*this, screen::Kind::Label, "DimLbl(1)"};
  screen::Control VkrValLbl0{*this, screen::Kind::Label, "VkrValLbl(0)"};
  screen::Control VkrValLbl1{*this, screen::Kind::Label, "VkrValLbl(1)"};

  // Takes the buttons of the tests in.
  screen::Control TestsFrm{*this, screen::Kind::Frame, "TestsFrm"};

  // What all tests say, whichever is pressed; takes a row of labels for each of them in.
  screen::Control VerdictsFrm{*this, screen::Kind::Frame, "VerdictsFrm"};
  screen::Control VerdictTestLbl{*this, screen::Kind::Label, "VerdictTestLbl"};
  screen::Control VerdictPercLbl{*this, screen::Kind::Label, "VerdictPercLbl"};
  screen::Control VerdictUTLLbl{*this, screen::Kind::Label, "VerdictUTLLbl"};
  screen::Control VerdictLbl{*this, screen::Kind::Label, "VerdictLbl"};
  screen::Control VerdictsLbl{*this, screen::Kind::Label, "VerdictsLbl"};

  screen::Control IntroFrm{*this, screen::Kind::Frame, "IntroFrm"};
  screen::Control IntroLbl{*this, screen::Kind::Label, "IntroLbl"};

  screen::Control UTLFrm{*this, screen::Kind::Frame, "UTLFrm"};
  screen::Control PercExLbl0{*this, screen::Kind::Label, "PercExLbl(0)"};
  screen::Control PercExTxB0{*this, screen::Kind::TextBox, "PercExTxB(0)"};
  screen::Control DimLbl2{*this, screen::Kind::Label, "DimLbl(2)"};
  screen::Control PercExLbl1{*this, screen::Kind::Label, "PercExLbl(1)"};
  screen::Control PercExTxB1{*this, screen::Kind::TextBox, "PercExTxB(1)"};
  screen::Control DimLbl3{*this, screen::Kind::Label, "DimLbl(3)"};
  screen::Control PercExLbl2{*this, screen::Kind::Label, "PercExLbl(2)"};
  screen::Control PercExTxB2{*this, screen::Kind::TextBox, "PercExTxB(2)"};
  screen::Control DimLbl4{*this, screen::Kind::Label, "DimLbl(4)"};
  screen::Control ComplianceLbl{*this, screen::Kind::Label, "ComplianceLbl"};
  screen::Control CommentLbl{*this, screen::Kind::Label, "CommentLbl"};
  screen::Control SampSizeCkb{*this, screen::Kind::CheckBox, "SampSizeCkb"};

  screen::Control SampsizeFrm{*this, screen::Kind::Frame, "SampsizeFrm"};
  screen::Control ComMinLbl{*this, screen::Kind::Label, "ComMinLbl"};
  screen::Control DegrMinLbl{*this, screen::Kind::Label, "DegrMinLbl"};
  screen::Control DegrMinTxb{*this, screen::Kind::TextBox, "DegrMinTxb"};
  screen::Control PercExLbl3{*this, screen::Kind::Label, "PercExLbl(3)"};
  screen::Control PercExTxB3{*this, screen::Kind::TextBox, "PercExTxB(3)"};
  screen::Control SampMinLbl{*this, screen::Kind::Label, "SampMinLbl"};
  screen::Control SampMinTxB{*this, screen::Kind::TextBox, "SampMinTxB"};

  bool loaded = false;

  void Load() override;
  void Activate() override;

  void BasisStatus();
  // Sets the layout for the present TestTag.
  void TestLayout();
  // A press of the button of that test.
  void Run(Extrapolation tag);
  void SampSizeCkb_Click();

 private:
  struct VerdictRow {
    VerdictRow(Form& form, const std::string& number);
    screen::Control test;
    screen::Control estimate;
    screen::Control limit;
    screen::Control verdict;
  };

  void AddTestButtons();
  void AddVerdictRows();
  void ShowVerdicts();
  void ShowHeader();
  void ShowIntroduction();
  void ShowWording();
  void ShowResultControls(const ComplianceTest* test);
  std::string LimitText(const std::string& separator) const;

  // What a test begins with: its tag, an empty layout, and the texts that are not results.
  void BeginTest(const ComplianceTest& test);
  void ClearResults();
  void ShowWords(const ComplianceTest& test);
  // The result that the record holds for the present state; without one, empty boxes.
  void ShowResult(const ComplianceTest& test);
  void ShowNumbers(const TestResult& result);
  void ShowVerdict(const ComplianceTest& test, const TestResult& result);
  void OfferSampleSize(bool offered);
  TestRun HowToRun();

  void ClearSampleSize();
  void ShowSampleSize(const SampleSizeBoxes& boxes);

  std::deque<screen::Control> testButtons_;  // controls keep their place
  std::deque<VerdictRow> verdictRows_;
};

}  // namespace compliance

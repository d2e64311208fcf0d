#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/walks/files.h"
#include "tests/walks/random.h"
#include "tests/walks/seen.h"
#include "tests/walks/step.h"

namespace walks {

// What a user might do next on the shown screen.
struct Offer {
  int weight = 0;
  std::string needs;  // a control that must be usable; empty for none
  std::function<Step()> make;
};

// Chooses steps at random, each one that can be done now.
class Generator {
 public:
  Generator(drive::Stage& stage, Random& random, const Folder& folder)
      : page_(stage), random_(random), folder_(folder) {}

  Step Next();
  // What a box that a step meets is answered.
  screen::Answer Choose(const screen::Message& message);

 private:
  std::vector<Offer> OffersHere();
  void OfferWays(std::vector<Offer>& offers);
  void OfferOptions(std::vector<Offer>& offers);
  void OfferMenus(std::vector<Offer>& offers);
  void OfferKeys(std::vector<Offer>& offers);
  void OfferStart(std::vector<Offer>& offers);
  void OfferIdentification(std::vector<Offer>& offers);
  void OfferRawData(std::vector<Offer>& offers);
  void OfferEdits(std::vector<Offer>& offers);
  void OfferLimits(std::vector<Offer>& offers);
  void OfferPlot(std::vector<Offer>& offers);
  void OfferTests(std::vector<Offer>& offers);
  void OfferMean(std::vector<Offer>& offers);
  void OfferComparison(std::vector<Offer>& offers);
  void OfferPicture(std::vector<Offer>& offers);
  void OfferFontTrial(std::vector<Offer>& offers);

  // Offers of one kind.
  void Click(std::vector<Offer>& offers, int weight, const std::string& name) const;
  void Type(std::vector<Offer>& offers, int weight, const std::string& name,
            const std::vector<std::string>& texts);
  void Arrows(std::vector<Offer>& offers, int weight, const std::string& pair,
              const std::string& field);
  void Pick(std::vector<Offer>& offers, int weight, const std::string& name);

  Step Line(const std::string& line) const { return {{line}}; }
  // The same by keys.
  Step Keys(std::vector<std::string> lines, const std::string& meant) const;
  Step OpenFile();
  Step SaveSeries();
  Step HandOver();
  Step ToSave(const std::string& menu, const std::string& file);
  Step PasteRows();
  Step MenuStep(const std::string& name);
  int RowCount() const;
  std::string Outcome();

  Page page_;
  Random& random_;
  const Folder& folder_;
};

}  // namespace walks

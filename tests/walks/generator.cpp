#include "tests/walks/generator.h"

#include "drive/hands.h"
#include "tests/walks/theatre.h"

namespace walks {
namespace {

const Offer& ByWeight(const std::vector<Offer>& offers, Random& random) {
  int sum = 0;
  for (const Offer& offer : offers) sum += offer.weight;
  int left = random.Below(sum);
  for (const Offer& offer : offers) {
    left -= offer.weight;
    if (left < 0) return offer;
  }
  return offers.back();
}

}  // namespace

Step Generator::Next() {
  const std::vector<Offer> offers = OffersHere();
  constexpr int kTries = 40;
  for (int i = 0; i < kTries; ++i) {
    const Offer& offer = ByWeight(offers, random_);
    if (offer.needs.empty() || page_.Usable(offer.needs)) return offer.make();
  }
  return Line("key Tab");
}

screen::Answer Generator::Choose(const screen::Message& message) {
  using screen::Answer;
  if (const auto staying = StayingAnswer(message)) {
    const bool asksOn = !message.advice.empty() && random_.Chance(50);
    if (!asksOn) return *staying;
    return *staying == Answer::No ? Answer::Yes : Answer::Ok;
  }
  std::vector<Answer> fitting;
  for (const Answer answer : {Answer::Ok, Answer::Cancel, Answer::Yes, Answer::No})
    if (Offers(message.buttons, answer)) fitting.push_back(answer);
  return random_.Pick(fitting);
}

std::vector<Offer> Generator::OffersHere() {
  std::vector<Offer> offers;
  const std::string& form = page_.Stage().Shown().name;
  OfferWays(offers);
  OfferMenus(offers);
  OfferOptions(offers);
  OfferKeys(offers);
  if (form == "BasisForm") OfferStart(offers);
  if (form == "DataCtrlForm") OfferRawData(offers);
  if (form == "GrenzenForm") OfferLimits(offers);
  if (form == "PlotForm") OfferPlot(offers);
  if (form == "PercExForm") OfferTests(offers);
  if (form == "UCLForm") OfferMean(offers);
  if (form == "TwoSampCompForm") OfferComparison(offers);
  if (form == "VerdelingForm") OfferPicture(offers);
  if (form == "frmPrintkeu") OfferFontTrial(offers);
  return offers;
}

void Generator::OfferWays(std::vector<Offer>& offers) {
  const screen::TabStrip* strip = page_.Stage().Shown().strip;
  if (strip && strip->visible)
    for (const screen::Tab& tab : strip->tabs)
      if (tab.key != strip->selected)
        offers.push_back(
            {tab.key == "plot" ? 8 : 3, "", [this, key = tab.key] { return Line("tab " + key); }});
  offers.push_back({1, "", [this] {
                      static const std::vector<std::string> sizes = {"800 613", "1280 720",
                                                                     "1000 900", "820 640"};
                      return Line("size " + random_.Pick(sizes));
                    }});
  offers.push_back({6, "MenuUndo", [this] { return Line("undo"); }});
  offers.push_back({6, "MenuRedo", [this] { return Line("redo"); }});
  offers.push_back({2, "", [this] {
                      static const std::vector<std::string> keys = {"Tab", "Shift+Tab"};
                      return Line("key " + random_.Pick(keys));
                    }});
  if (random_.Chance(12)) offers.push_back({1, "", [this] { return Line("quit"); }});
}

// The arrows go from option to option; the space bar chooses the one that they have reached.
void Generator::OfferOptions(std::vector<Offer>& offers) {
  const std::string focus = drive::Focused(page_.Stage());
  if (!focus.ends_with("Opt")) return;
  offers.push_back({20, "", [this] {
                      static const std::vector<std::string> keys = {
                          "Left", "Right", "Up", "Down", "Left", "Right", "Space", "Return"};
                      return Line("key " + random_.Pick(keys));
                    }});
}

// The roads that need no mouse.
void Generator::OfferKeys(std::vector<Offer>& offers) {
  const screen::TabStrip* strip = page_.Stage().Shown().strip;
  if (!strip || LogOpen(page_.Stage())) return;
  offers.push_back({3, "", [this] {
                      static const std::vector<std::string> keys = {"Ctrl+PgDown", "Ctrl+PgUp",
                                                                    "Ctrl+Tab", "Ctrl+Shift+Tab"};
                      return Line("key " + random_.Pick(keys));
                    }});
  offers.push_back({1, "MenuPlot", [this] {
                      return Keys({"access T", "key P"}, "menu MenuPlot");
                    }});
  offers.push_back({1, "MenuComp", [this] {
                      return Keys({"access T", "key C"}, "menu MenuComp");
                    }});
}

Step Generator::Keys(std::vector<std::string> lines, const std::string& meant) const {
  Step step;
  step.lines = std::move(lines);
  step.meant = meant;
  return step;
}

// Rare: what ends the walk's series, and the slowest calculation.
void Generator::OfferMenus(std::vector<Offer>& offers) {
  for (const screen::Control* control : page_.Stage().Shown().controls) {
    if (!page_.IsMenuItem(*control)) continue;
    const std::string& name = control->name;
    // These need a file, or what another program has put on the clipboard.
    if (name == "menuopen" || name == "menuSavePicture" || name == "MenuPaste" ||
        name == "MenuUndo" || name == "MenuRedo")
      continue;
    if (name == "MenuSave") {
      offers.push_back({1, name, [this] { return SaveSeries(); }});
      continue;
    }
    if (name == "MenuDocument") {
      offers.push_back({2, name, [this] { return HandOver(); }});
      continue;
    }
    const bool closes = name == "Menuclose" && page_.Stage().Shown().name != "frmPrintkeu";
    const bool rare = closes || name == "MenuExit" || name == "MenuLand" || name == "MenuDevMode";
    if (rare && !random_.Chance(12)) continue;
    offers.push_back({1, name, [this, name] { return MenuStep(name); }});
  }
}

// The log's window takes the keys: it is closed again at once.
Step Generator::MenuStep(const std::string& name) {
  if (name == "MenuReportOpen") return Keys({"menu " + name, "key Escape"}, "menu " + name);
  return Line("menu " + name);
}

void Generator::Click(std::vector<Offer>& offers, int weight, const std::string& name) const {
  offers.push_back({weight, name, [this, name] { return Line("click " + name); }});
}

void Generator::Type(std::vector<Offer>& offers, int weight, const std::string& name,
                     const std::vector<std::string>& texts) {
  offers.push_back({weight, name, [this, name, texts] {
                      const char* command = random_.Chance(70) ? "type " : "enter ";
                      return Line(LineWith(command + name, random_.Pick(texts)));
                    }});
}

void Generator::Arrows(std::vector<Offer>& offers, int weight, const std::string& pair,
                       const std::string& field) {
  offers.push_back({weight, pair, [this, field] {
                      const bool up = random_.Chance(50);
                      const std::string meant = (up ? "up " : "down ") + field;
                      if (random_.Chance(50)) return Line(meant);
                      return Keys({"click " + field, up ? "key Up" : "key Down"}, meant);
                    }});
}

void Generator::Pick(std::vector<Offer>& offers, int weight, const std::string& name) {
  offers.push_back({weight, name, [this, name] {
                      return Line(
                          LineWith("pick " + name, random_.Pick(page_.Control(name).items)));
                    }});
}

Step Generator::SaveSeries() {
  static const std::vector<std::string> names = {"saved1.vkr", "saved2.vkr"};
  return ToSave("MenuSave", random_.Pick(names));
}

Step Generator::HandOver() {
  static const std::vector<std::string> names = {"all.csv", "all.csv", "all.txt", "all.pdf"};
  return ToSave("MenuDocument", random_.Pick(names));
}

Step Generator::ToSave(const std::string& menu, const std::string& file) {
  Step step = Line("menu " + menu);
  if (random_.Chance(85)) step.file = file;
  return step;
}

}  // namespace walks

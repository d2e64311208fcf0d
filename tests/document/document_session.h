#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <variant>
#include <vector>

#include "document/contents.h"
#include "document/plain_text.h"
#include "session/global_bas.h"
#include "tests/support/program_session.h"

// The whole program, and the document of its present state.
class DocumentSession : public testing::Test {
 protected:
  document::Contents Made() {
    const bool compared = p.program.SessionRecord().Comparison() != nullptr;
    return document::Compose(p.Record(), {p.clock.Now(), compared});
  }

  static std::vector<document::Result> ResultsOf(const document::Contents& contents) {
    std::vector<document::Result> all;
    for (const document::Section& section : contents.sections)
      for (const document::Block& block : section.blocks)
        std::visit(
            [&all](const auto& part) {
              if constexpr (requires { part.results; })
                all.insert(all.end(), part.results.begin(), part.results.end());
            },
            block);
    return all;
  }

  // The value of the result of that name whose method has these words; fails where there is none.
  std::string ValueOf(const std::string& name, const std::string& method = "") {
    for (const document::Result& result : ResultsOf(Made()))
      if (result.name == name && result.method.find(method) != std::string::npos)
        return result.value;
    ADD_FAILURE() << "the document has no " << name << " " << method;
    return {};
  }

  std::string Text() { return document::PlainText(Made()); }
  bool Tells(const std::string& words) { return Text().find(words) != std::string::npos; }
  std::string Box(const std::string& control) { return GlobalBAS::Trim(p.Text(control)); }

  void OpenTwelve() { p.OpenSeries({0.3, 0.5, 0.7, 0.9, 1.1, 1.3, 1.6, 2, 2.4, 3, 4.2, 6.5}); }
  void OpenThirty() {
    std::vector<double> outcomes;
    for (int i = 1; i <= 30; ++i) outcomes.push_back(i % 7 + i / 10.0);
    p.OpenSeries(outcomes);
  }
  void StateLimit(const std::string& limit) {
    p.Tab("grenzen");
    p.Type("VkrValTxB", limit);
  }

  support::ProgramSession p;
};

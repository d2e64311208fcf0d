#include "tools/accuracy/performance.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <fstream>
#include <stdexcept>

#include "tools/accuracy/numbers.h"

namespace accuracy {
namespace {

constexpr const char* kHeader = "row;found;standard error\n";

std::string Text(double value) {
  char text[32];
  return {text, std::to_chars(text, text + sizeof text, value, std::chars_format::general, 8).ptr};
}

double Number(const std::string& text) {
  const std::optional<double> value = NumberIn(text);
  if (!value) throw std::runtime_error("no number: " + text);
  return *value;
}

// The same for the same name, on every machine.
std::uint64_t HashOf(const std::string& name) {
  std::uint64_t hash = 14695981039346656037U;
  for (const char c : name) hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
  return hash;
}

}  // namespace

std::vector<Performance> Performances() {
  std::vector<Performance> all;
  for (const auto part : {EstimatorPerformances, FitPerformances, CompliancePerformances,
                          MeanPerformances, ComparisonPerformances})
    for (Performance& row : part()) all.push_back(std::move(row));
  return all;
}

std::string Key(const Performance& row) {
  return row.routine + " | " + row.what + " | " + row.where;
}

Found Simulated(const Performance& row, unsigned seed, double part) {
  Chance chance(HashOf(Key(row)) + seed);
  return row.measure(chance, std::max(2, static_cast<int>(row.runs * part)));
}

Simulations SimulateAll(unsigned seed, const Simulations& before, const std::string& part) {
  Simulations all;
  for (const Performance& row : Performances()) {
    const std::string key = Key(row);
    const auto known = before.find(key);
    const bool kept = known != before.end() && key.find(part) == std::string::npos;
    if (!all.emplace(key, kept ? known->second : Simulated(row, seed)).second)
      throw std::logic_error("two rows " + key);
  }
  return all;
}

std::string SimulationsText(const Simulations& simulations) {
  std::string text = kHeader;
  for (const auto& [key, found] : simulations)
    text += key + ";" + Text(found.value) + ";" + Text(found.error) + "\n";
  return text;
}

Simulations ReadSimulations(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::string line;
  if (!std::getline(in, line) || line + "\n" != kHeader)
    throw std::runtime_error("no recorded simulations in " + path);
  Simulations all;
  while (std::getline(in, line)) {
    const std::size_t first = line.find(';');
    const std::size_t second = line.find(';', first + 1);
    if (second == std::string::npos) throw std::runtime_error("a broken record: " + line);
    all[line.substr(0, first)] = {Number(line.substr(first + 1, second - first - 1)),
                                  Number(line.substr(second + 1))};
  }
  return all;
}

DrawnSample Draw(Chance& chance, double M, double GSD) {
  const double sigma = std::log(GSD);
  const double lnGM = sigma * chance.Normal() / std::sqrt(M);
  return {M, lnGM, sigma * std::sqrt(chance.ChiSquare(M - 1) / (M - 1))};
}

}  // namespace accuracy

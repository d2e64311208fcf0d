#pragma once

#include <initializer_list>
#include <string>

// The program's own texts, beside the rows of the catalogue. A text names its arguments {0}, {1}.
enum class Own {
  LeftOut,
  LeftOutOne,
  AllEqual,
  SpreadTooLarge,
  NoDegreeOfFreedom,
  EstimatesOfAll,
  EstimatesByRange,
  EstimatesOfRegression,
  LineBeyondNumbers,
  LimitReset,
  NoPicture,
  PictureNeedsTest,
  StaleTest,
  ResultsDiffer,
};

const char* OwnText(Own id);
std::string OwnText(Own id, std::initializer_list<std::string> arguments);

#pragma once

#include <string>
#include <vector>

namespace bench {

// `count` outcomes that look like a lognormal series, the same at every run.
std::vector<double> LognormalSeries(int count);

// A raw data file with these outcomes in a folder of its own; gone when the object is.
class RawSeriesFile {
 public:
  explicit RawSeriesFile(int count);
  explicit RawSeriesFile(const std::string& bytes);
  ~RawSeriesFile();
  RawSeriesFile(const RawSeriesFile&) = delete;
  RawSeriesFile& operator=(const RawSeriesFile&) = delete;
  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

}  // namespace bench

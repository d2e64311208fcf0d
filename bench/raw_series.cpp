#include "bench/raw_series.h"

#include <unistd.h>

#include <cmath>
#include <cstdint>
#include <filesystem>
#include <stdexcept>

#include "files/safe_writer.h"
#include "rawdata/raw_file.h"

namespace bench {

// Twelve uniform numbers of a linear congruential generator (Knuth's MMIX constants) make one that
// is near enough to normal; four digits each, as measurements have.
std::vector<double> LognormalSeries(int count) {
  std::uint64_t state = 20260401;
  std::vector<double> series;
  for (int i = 0; i < count; ++i) {
    double z = -6;
    for (int k = 0; k < 12; ++k) {
      state = state * 6364136223846793005U + 1442695040888963407U;
      z += static_cast<double>(state >> 11U) / 9007199254740992.0;
    }
    series.push_back(std::round(std::exp(0.9 * z) * 1000) / 1000 + 0.001);
  }
  return series;
}

RawSeriesFile::RawSeriesFile(int count)
    : RawSeriesFile(rawdata::FileBytes(LognormalSeries(count))) {}

RawSeriesFile::RawSeriesFile(const std::string& bytes) {
  std::string folder = (std::filesystem::temp_directory_path() / "valkorin-bench-XXXXXX").string();
  if (mkdtemp(folder.data()) == nullptr) throw std::runtime_error("no temporary folder");
  path_ = folder + "/series.vkr";
  if (!files::WriteSafely(path_, bytes)) throw std::runtime_error("cannot write " + path_);
}

RawSeriesFile::~RawSeriesFile() {
  std::error_code ignored;
  std::filesystem::remove_all(std::filesystem::path(path_).parent_path(), ignored);
}

}  // namespace bench

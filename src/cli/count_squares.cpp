#include "cli/count_squares.h"

#include <iomanip>
#include <limits>
#include <ostream>
#include <sstream>

#include "app/ports/build_stage.h"
#include "cli/count_conditions.h"
#include "cli/input_file.h"
#include "count/count_all.h"
#include "count/count_estimate.h"
#include "count/kept_images.h"
#include "files/json_line.h"
#include "study/images.h"
#include "words/say.h"

namespace numorra {
namespace {

constexpr double kSecondsOfEstimate = 10;
constexpr const char* kStandardError = Mark(
    "two of three such estimates are at most the standard error away from the true count, if the "
    "samples are many; with few, most estimates are too low");

/// A line of names and values, or a JSON object of them.
class CountLine {
 public:
  CountLine(SquareFormat format, int order, const std::string& kind) : format_(format) {
    Add("order", std::to_string(order));
    text_ += " " + kind;
    json_.Add("kind", JsonString(kind));
  }

  void Add(const char* name, const std::string& value) {
    text_ += (text_.empty() ? "" : " ") + std::string(name) + " " + value;
    json_.Add(name, value);
  }

  std::string Text() const { return (format_ == SquareFormat::Json ? json_.Text() : text_) + "\n"; }

 private:
  SquareFormat format_;
  std::string text_;
  JsonLine json_;
};

std::string WholeLine(const CountRequest& request, int order, std::int64_t count,
                      std::int64_t images) {
  CountLine line(request.Format, order, request.KindNames);
  line.Add("count", std::to_string(count));
  line.Add("images", std::to_string(count * images));
  return line.Text();
}

void WriteMerged(const CountRequest& request, const Streams& streams) {
  constexpr std::size_t kLongestLine = 1000;
  std::vector<SliceCount> slices;
  for (const std::string& name : request.Files) {
    InputFile file(name, streams.In);
    std::string line;
    for (int number = 1; std::getline(file.In(), line); ++number) {
      if (line.empty()) continue;
      const auto read = line.size() > kLongestLine ? Say("this is not the count of a slice")
                                                   : ReadSliceLine(line);
      if (const auto* why = std::get_if<std::string>(&read)) {
        throw Impossible{Say("'%1', line %2: %3", name, number, *why)};
      }
      slices.push_back(std::get<SliceCount>(read));
    }
    file.CheckReadToEnd();
  }
  const auto whole = Merge(std::move(slices));
  if (const auto* why = std::get_if<std::string>(&whole)) throw Impossible{*why};
  streams.Out << WholeLine(request, kSlicedOrder, std::get<std::int64_t>(whole), kImages);
}

void WriteEstimate(const CountRequest& request, const CountWish& wish, const Streams& streams) {
  SilentStage stage;
  TickingClock clock(0);
  ClockSeededRandom random(clock);
  const CountEstimate estimate =
      EstimateCount(wish, request.Seconds.value_or(kSecondsOfEstimate),
                    std::numeric_limits<std::int64_t>::max(), random, stage);
  const auto shown = [](double number, int digits) {
    std::ostringstream out;
    out << std::setprecision(digits) << number;
    return out.str();
  };
  CountLine line(request.Format, wish.Order(), request.KindNames);
  line.Add("estimate", shown(estimate.Squares, 4));
  line.Add("standard-error", shown(estimate.Error, 2));
  line.Add("samples", std::to_string(estimate.Samples));
  streams.Out << line.Text();
  streams.Err << streams.Program << Say(kStandardError) << "\n";
}

}  // namespace

void CountSquares(const CountRequest& request, const Streams& streams) {
  SilentStage stage;
  if (request.Merges) {
    WriteMerged(request, streams);
  } else if (request.Part) {
    const SliceCount slice = CountSlice(*request.Part, stage);
    streams.Out << (request.Format == SquareFormat::Json ? JsonOf(slice) : TextOf(slice)) << "\n";
  } else {
    const CountWish wish = CountWishOf(request, streams);
    if (request.Estimates) {
      WriteEstimate(request, wish, streams);
      return;
    }
    const auto count = CountAll(wish, stage);
    if (const auto* why = std::get_if<std::string>(&count)) throw Impossible{*why};
    const auto images = MapsThatKeep(wish.Givens, EightImages(wish.Order())).size();
    streams.Out << WholeLine(request, wish.Order(), std::get<std::int64_t>(count),
                             static_cast<std::int64_t>(images));
  }
}

}  // namespace numorra

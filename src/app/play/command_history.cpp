#include "app/play/command_history.h"

namespace numorra {

const char* CaptionOf(RedoCode code) {
  switch (code) {
    case RedoCode::MaximumValue:
      return "maximum value in grid";
    case RedoCode::MinimumValue:
      return "mimimum value in grid";
    case RedoCode::RandomValue:
      return "a random value";
    case RedoCode::WholeBoardRandom:
      return "entire grid to random values";
    case RedoCode::CorrectRow:
      return "correct row total";
    case RedoCode::CorrectColumn:
      return "correct column total";
    case RedoCode::CorrectDiagonal:
      return "correct diagnonal";
    case RedoCode::SetValue:
      return "set value to";
    case RedoCode::FlipVertical:
      return "Flip vertical";
    case RedoCode::FlipHorizontal:
      return "Flip horizontal";
    case RedoCode::FlipDiagonal1:
      return "Flip diagonal 1";
    case RedoCode::FlipDiagonal2:
      return "Flip diagonal 2";
    case RedoCode::Rotate90:
      return "Rotate 90d";
    case RedoCode::Rotate180:
      return "Rotate 180d";
    case RedoCode::Rotate270:
      return "Rotate 270d";
  }
  return "";
}

}  // namespace numorra

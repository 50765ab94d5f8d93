#include "app/window/board/range_words.h"

#include <QStringList>

#include "app/board/note_ranges.h"
#include "toolkit/tr.h"

namespace numorra {

QString RangesInWords(const NoteSet& notes) {
  QString words;
  for (const QString& range : QString::fromStdString(RangesOf(notes)).split(' ')) {
    const QStringList ends = range.split('-');
    const QString said = ends.size() == 1 ? range : Tr("%1 to %2", ends[0], ends[1]);
    words = words.isEmpty() ? said : Tr("%1, %2", words, said);
  }
  return words;
}

}  // namespace numorra

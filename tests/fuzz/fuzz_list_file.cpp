#include <cstdio>
#include <fstream>
#include <unistd.h>

#include "fuzz/check.h"
#include "listbox/list_boy.h"
#include "support/stand_ins.h"

using namespace numorra;

/// A list that is loaded, sorted, searched and saved loads again with the same items.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::string path = "/tmp/numorra-fuzz-list-" + std::to_string(getpid());
  std::ofstream(path, std::ios::binary) << TextOf(data, size);
  SeededRandom random(size);
  ListBoy list(random);
  list.LoadFile(path);
  for (int i = 0; i < list.ListCount(); ++i)
    list.SetItemData(i, i % 3);
  list.SortItemDataDescending();
  list.SortAscending();
  list.Find("*a*", 0, true, 0, false);
  if (list.ListCount() > 0) list.UpdateText(0, "x\ty", 1);
  list.SaveFile(path);
  ListBoy again(random);
  again.LoadFile(path);
  Check(again.ListCount() == list.ListCount());
  for (int i = 0; i < list.ListCount(); ++i)
    Check(again.list(i, 0) == list.list(i, 0));
  std::remove(path.c_str());
  return 0;
}

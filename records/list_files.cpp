#include "records/item_reader.h"
#include "records/ordvik.h"
#include "records/player_record.h"
#include "records/whole_file.h"

namespace frostmark {
namespace {

// Nine items make a record, whatever the lines of the file.
class RecordBuilder {
 public:
  // Takes one more field; true when it completes a record.
  bool Add(std::string_view field) {
    if (fields_ == 0) {
      record_.assign(field);
    } else {
      record_ += ',';
      record_ += field;
    }
    if (++fields_ < kFieldCount) return false;
    fields_ = 0;
    return true;
  }
  const std::string& record() const { return record_; }

 private:
  std::string record_;
  int fields_ = 0;
};

}  // namespace

void Ordvik::SaveListFile(const RecordList& list, const std::string& path) {
  std::string content;
  const int count = list.ListCount();
  for (int i = 0; i < count; ++i) {
    content += list.List(i);
    content += "\r\n";
    queue_.Yield();
  }
  StoreWhole(path, content);
}

// The temporary file lies in Settings and never in a league folder, where every file is a team. It
// has one name, so that a killed program leaves at most one behind, which the next write takes.
void Ordvik::StoreWhole(const std::string& path, std::string_view content) {
  ++counts_.file_writes;
  ReplaceFile(path, SettingsPath("unfinished.tmp"), content);
}

void Ordvik::LoadPlayerFile(RecordList& list, const std::string& path) {
  ++counts_.file_reads;
  RecordBuilder builder;
  auto content = ReadWholeFile(path);
  if (!content) {
    // The test for the end of a file that is not open is passed over like any other failure, so the
    // reading goes on for good. A list that is full grows no further.
    while (true) {
      if (builder.Add("")) list.AddItem(builder.record());
      queue_.Wait();
    }
  }
  ItemReader reader(std::move(*content));
  while (!reader.AtEnd()) {
    if (builder.Add(reader.Next())) list.AddItem(builder.record());
    queue_.Yield();
  }
}

void Ordvik::LoadSettingsList(RecordList& list, const std::string& name) {
  ++counts_.file_reads;
  auto content = ReadWholeFile(SettingsPath(name));
  if (!content) {
    while (true) {  // as in LoadPlayerFile
      list.AddItem("");
      queue_.Wait();
    }
  }
  ItemReader reader(std::move(*content));
  while (!reader.AtEnd()) {
    list.AddItem(reader.Next());
    queue_.Yield();
  }
}

}  // namespace frostmark

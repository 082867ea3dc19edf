#include "records/item_reader.h"
#include "records/lines/player_record.h"
#include "records/ordvik.h"

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

std::string Ordvik::LinesOf(const RecordList& list) {
  std::string content;
  const int count = list.ListCount();
  for (int i = 0; i < count; ++i) {
    content += list.List(i);
    content += "\r\n";
    queue_.Yield();
  }
  return content;
}

void Ordvik::SaveListFile(const RecordList& list, const std::string& path) {
  const std::string content = LinesOf(list);
  ++counts_.file_writes;
  (void)files_.Write(path, content);
}

void Ordvik::SaveListFile(const RecordList& list, const std::string& path, FileStore::Save& save) {
  std::string content = LinesOf(list);
  ++counts_.file_writes;
  save.Hold(path, std::move(content));
}

void Ordvik::LoadPlayerFile(RecordList& list, const std::string& path) {
  ++counts_.file_reads;
  RecordBuilder builder;
  auto content = files_.Read(path);
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
  auto content = files_.Read(SettingsPath(name));
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

#include "records/record_list.h"

#include <algorithm>

#include "records/runtime_error.h"

namespace frostmark {
namespace {

[[noreturn]] void FailOutside(int index) {
  throw RuntimeError("Invalid list index: " + std::to_string(index));
}

}  // namespace

const std::string RecordList::kNoItem;

void RecordList::Text::Write(std::string_view text) {
  if (shared_ != nullptr && shared_->owners == 1) {
    shared_->text.assign(text);
    return;
  }
  auto* fresh = new Shared{std::string(text)};
  Release();  // only now: TEXT may be a view of what is let go
  shared_ = fresh;
}

void RecordList::SetList(int i, std::string_view item) {
  if (i < 0 || i >= count_) FailOutside(i);
  items_[static_cast<std::size_t>(i)].Write(item);
  if (observer_ != nullptr) observer_->ItemChanged(i);
}

void RecordList::AddItem(std::string_view item) {
  if (count_ == kMostItems) return;
  if (static_cast<std::size_t>(count_) == items_.size()) items_.emplace_back();
  items_[static_cast<std::size_t>(count_++)].Write(item);
  if (observer_ != nullptr) observer_->ItemInserted(count_ - 1);
}

void RecordList::AddItem(std::string_view item, int index) {
  if (index < 0 || index > count_) FailOutside(index);
  if (count_ == kMostItems) return;
  if (static_cast<std::size_t>(count_) == items_.size()) items_.emplace_back();
  items_[static_cast<std::size_t>(count_)].Write(item);
  std::rotate(items_.begin() + index, items_.begin() + count_, items_.begin() + count_ + 1);
  ++count_;
  if (selected_ >= index) ++selected_;
  if (observer_ != nullptr) observer_->ItemInserted(index);
}

void RecordList::RemoveItem(int i) {
  if (i < 0 || i >= count_) FailOutside(i);
  std::rotate(items_.begin() + i, items_.begin() + i + 1, items_.begin() + count_);
  --count_;
  if (selected_ == i) {
    selected_ = -1;
  } else if (selected_ > i) {
    --selected_;
  }
  if (observer_ != nullptr) observer_->ItemRemoved(i);
}

void RecordList::SetListIndex(int i) {
  if (i < -1 || i >= count_) FailOutside(i);
  if (i == selected_) return;
  selected_ = i;
  if (observer_ != nullptr) observer_->SelectionChanged();
}

}  // namespace frostmark

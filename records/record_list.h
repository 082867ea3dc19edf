#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace frostmark {

// The only container of the game: an ordered list of texts, indexed from 0, with a selection. It
// does not sort by itself and keeps duplicates. Strings keep their memory when the list is cleared,
// so a list that is refilled again and again allocates nothing.
class RecordList {
 public:
  // The most items a list holds. A full list stays as it is when something is added.
  static constexpr int kMostItems = 32767;

  // Told of every change after it has happened. A front end shows a list through one.
  class Observer {
   public:
    Observer() = default;
    Observer(const Observer&) = delete;
    Observer& operator=(const Observer&) = delete;
    virtual ~Observer() = default;
    virtual void ItemInserted(int index) = 0;
    virtual void ItemRemoved(int index) = 0;
    virtual void ItemChanged(int index) = 0;
    virtual void Cleared() = 0;
    virtual void SelectionChanged() = 0;
  };

  RecordList() = default;
  RecordList(const RecordList&) = delete;
  RecordList& operator=(const RecordList&) = delete;
  ~RecordList() = default;

  int ListCount() const { return count_; }

  // Item I, or the empty text when there is no such item. The reference is good until the list
  // changes: copy it before anything that yields.
  const std::string& List(int i) const {
    return i >= 0 && i < count_ ? items_[static_cast<std::size_t>(i)] : kNoItem;
  }

  // Replaces item I. Throws RuntimeError when there is no such item.
  void SetList(int i, std::string_view item);

  // Appends ITEM.
  void AddItem(std::string_view item) {
    // The match engines refill their lists at every step, so the way into spare memory is short.
    if (static_cast<std::size_t>(count_) >= items_.size()) return Grow(item);
    items_[static_cast<std::size_t>(count_++)].assign(item);
    if (observer_ != nullptr) observer_->ItemInserted(count_ - 1);
  }

  // Inserts ITEM before INDEX (0 to ListCount). Throws RuntimeError for any other INDEX.
  void AddItem(std::string_view item, int index);

  // Removes item I; later items move up by one. Removing the selected item leaves none selected.
  // Throws RuntimeError when there is no such item.
  void RemoveItem(int i);

  // Removes all items and the selection.
  void Clear() {
    if (count_ == 0) return;
    count_ = 0;
    selected_ = -1;
    if (observer_ != nullptr) observer_->Cleared();
  }

  // The selected item, -1 when none is. It follows its item when others come or go in front of it.
  int ListIndex() const { return selected_; }

  // Selects item I; -1 selects none. Throws RuntimeError when there is no such item.
  void SetListIndex(int i);

  void SetObserver(Observer* observer) { observer_ = observer; }

 private:
  static const std::string kNoItem;

  void Grow(std::string_view item);

  std::vector<std::string> items_;  // the first count_ are the list, the rest is spare memory
  int count_ = 0;
  int selected_ = -1;
  Observer* observer_ = nullptr;
};

}  // namespace frostmark

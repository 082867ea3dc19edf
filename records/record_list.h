#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace frostmark {

// The only container of the game: an ordered list of texts, indexed from 0, with a selection. It
// does not sort by itself and keeps duplicates. Texts keep their memory when the list is cleared,
// and an item copied from another list shares its text until one of the two is written, so a list
// that is refilled again and again allocates nothing. Lists that share are used by one thread.
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
    return i >= 0 && i < count_ ? items_[static_cast<std::size_t>(i)].Read() : kNoItem;
  }

  // Replaces item I. Throws RuntimeError when there is no such item.
  void SetList(int i, std::string_view item);

  // Appends ITEM.
  void AddItem(std::string_view item);

  // Appends a copy of FROM's item I, the empty text when FROM has no such item. The match engines
  // refill their lists so at every step: nothing is copied but a pointer.
  void AddItemOf(const RecordList& from, int i) {
    const auto place = static_cast<std::size_t>(count_);
    const auto source = static_cast<std::size_t>(i);
    if (place >= items_.size() || i < 0 || i >= from.count_) return AddItem(from.List(i));
    items_[place].Share(from.items_[source]);
    ++count_;
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
  // A text whose memory may serve several items. It is never changed while it does.
  class Text {
   public:
    Text() = default;
    Text(Text&& other) noexcept : shared_(std::exchange(other.shared_, nullptr)) {}
    Text& operator=(Text&& other) noexcept {
      std::swap(shared_, other.shared_);
      return *this;
    }
    Text(const Text&) = delete;
    Text& operator=(const Text&) = delete;
    ~Text() { Release(); }

    // To be called only after the first Write or Share.
    const std::string& Read() const { return shared_->text; }
    void Write(std::string_view text);
    void Share(const Text& other) {
      if (shared_ == other.shared_) return;
      Release();
      shared_ = other.shared_;
      ++shared_->owners;
    }

   private:
    struct Shared {
      std::string text;
      int owners = 1;
    };

    void Release() {
      if (shared_ != nullptr && --shared_->owners == 0) delete shared_;
    }

    Shared* shared_ = nullptr;
  };

  static const std::string kNoItem;

  std::vector<Text> items_;  // the first count_ are the list, the rest is spare memory
  int count_ = 0;
  int selected_ = -1;
  Observer* observer_ = nullptr;
};

}  // namespace frostmark

#pragma once

// For tests: a list or combo box without a window. It notes each call that changes it. "select" is the click event, for
// which it puts its name into a diary that several lists may share, and does what its window would do.

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ranges/range_lists.h"

namespace quillon {

class RecordedList final : public ChooserList {
 public:
  explicit RecordedList(std::string name, std::vector<std::string>* diary = nullptr)
      : name_(std::move(name)), diary_(diary) {}

  [[nodiscard]] std::string ControlName() const override { return name_; }
  [[nodiscard]] std::string CurrentText() const override { return selected_ < 0 ? std::string() : Entry(selected_); }
  void Clear() override {
    notes_.emplace_back("clear");
    entries_.clear();
    selected_ = -1;
  }
  void Add(std::string_view text) override {
    notes_.emplace_back("add " + std::string(text));
    entries_.emplace_back(text);
  }
  [[nodiscard]] int Count() const override { return static_cast<int>(entries_.size()); }
  [[nodiscard]] std::string Entry(int index) const override { return entries_.at(static_cast<std::size_t>(index)); }
  void Select(int index) override {
    selected_ = index;
    notes_.emplace_back("select " + std::to_string(index));
    if (diary_ != nullptr) diary_->push_back(name_);
    if (handle_) handle_();
  }

  /// What its window does at the click event; nothing at first.
  void OnClick(std::function<void()> handle) { handle_ = std::move(handle); }

  [[nodiscard]] std::vector<std::string> TakeNotes() { return std::exchange(notes_, {}); }
  [[nodiscard]] const std::vector<std::string>& Entries() const { return entries_; }

 private:
  std::string name_;
  std::vector<std::string>* diary_;
  std::vector<std::string> entries_;
  int selected_ = -1;
  std::vector<std::string> notes_;
  std::function<void()> handle_;
};

}  // namespace quillon

#pragma once

// A bounded queue between threads: Push waits while it is full, Pop while it is empty.

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <mutex>
#include <optional>
#include <utility>

namespace quillon {

template <typename Item>
class BoundedQueue {
 public:
  /// Holds at most `most` items, at least one.
  explicit BoundedQueue(std::size_t most) : most_(most) {}

  /// Appends an item, once there is room.
  void Push(Item item) {
    std::unique_lock lock(access_);
    room_.wait(lock, [this] { return items_.size() < most_; });
    items_.push_back(std::move(item));
    filled_.notify_one();
  }

  /// Removes the first item, once there is one; nothing if the queue is closed and empty.
  std::optional<Item> Pop() {
    std::unique_lock lock(access_);
    filled_.wait(lock, [this] { return closed_ || !items_.empty(); });
    if (items_.empty()) return std::nullopt;
    std::optional<Item> item = std::move(items_.front());
    items_.pop_front();
    room_.notify_one();
    return item;
  }

  /// Whether the queue is empty at the moment.
  [[nodiscard]] bool IsEmpty() const {
    const std::lock_guard lock(access_);
    return items_.empty();
  }

  /// No more items follow.
  void Close() {
    const std::lock_guard lock(access_);
    closed_ = true;
    filled_.notify_all();
  }

 private:
  std::size_t most_;
  mutable std::mutex access_;
  std::condition_variable room_;
  std::condition_variable filled_;
  std::deque<Item> items_;
  bool closed_ = false;
};

}  // namespace quillon

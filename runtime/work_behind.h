#pragma once
// Batches of work done by a second thread in the order they are given, while
// the thread that gives them goes on. Only a few batches wait at a time, and
// a failure of the work is thrown to the giver at its next step.
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <exception>
#include <functional>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace ostraline {

template <class Batch>
class WorkBehind {
 public:
  // Where no second thread can be had, each batch is done when given.
  WorkBehind(std::function<void(Batch&)> work, std::size_t waiting)
      : work_(std::move(work)), waiting_(waiting) {
    try {
      thread_ = std::thread([this] { Run(); });
    } catch (const std::system_error&) {
      atOnce_ = true;
    }
  }
  WorkBehind(const WorkBehind&) = delete;
  WorkBehind& operator=(const WorkBehind&) = delete;
  // Batches not yet done are dropped.
  ~WorkBehind() {
    if (!thread_.joinable()) return;
    {
      const std::lock_guard<std::mutex> hold(lock_);
      stopped_ = true;
    }
    changed_.notify_all();
    thread_.join();
  }

  // Waits while as many batches as may wait are not yet begun.
  void Give(Batch batch) {
    if (atOnce_) {
      work_(batch);
      done_.push_back(std::move(batch));
      return;
    }
    std::unique_lock<std::mutex> hold(lock_);
    changed_.wait(hold, [this] { return failure_ || pending_.size() < waiting_; });
    if (failure_) std::rethrow_exception(failure_);
    pending_.push_back(std::move(batch));
    hold.unlock();
    changed_.notify_all();
  }

  // The oldest batch done and not yet taken, if there is one.
  bool TakeDone(Batch& batch) {
    const std::lock_guard<std::mutex> hold(lock_);
    if (done_.empty()) return false;
    batch = std::move(done_.front());
    done_.pop_front();
    return true;
  }

  // Waits until every batch given is done; they are left to be taken.
  void Wait() {
    if (atOnce_) return;
    std::unique_lock<std::mutex> hold(lock_);
    changed_.wait(hold, [this] { return failure_ || (pending_.empty() && !busy_); });
    if (failure_) std::rethrow_exception(failure_);
  }

  // Waits until every batch given is done, and ends the second thread; the
  // batches done are left to be taken.
  void Finish() {
    if (atOnce_) return;
    {
      const std::lock_guard<std::mutex> hold(lock_);
      finishing_ = true;
    }
    changed_.notify_all();
    thread_.join();
    if (failure_) std::rethrow_exception(failure_);
  }

 private:
  void Run() {
    std::unique_lock<std::mutex> hold(lock_);
    while (true) {
      changed_.wait(hold, [this] { return stopped_ || finishing_ || !pending_.empty(); });
      if (stopped_ || pending_.empty()) return;
      Batch batch = std::move(pending_.front());
      pending_.pop_front();
      busy_ = true;
      hold.unlock();
      changed_.notify_all();
      try {
        work_(batch);
      } catch (...) {
        hold.lock();
        failure_ = std::current_exception();
        changed_.notify_all();
        return;
      }
      hold.lock();
      done_.push_back(std::move(batch));
      busy_ = false;
      changed_.notify_all();
    }
  }

  std::function<void(Batch&)> work_;
  const std::size_t waiting_;
  std::mutex lock_;
  std::condition_variable changed_;
  std::deque<Batch> pending_;
  std::deque<Batch> done_;
  bool busy_ = false;
  bool finishing_ = false;
  bool stopped_ = false;
  std::exception_ptr failure_;
  bool atOnce_ = false;
  // Started last, when everything it uses is in place.
  std::thread thread_;
};

}  // namespace ostraline

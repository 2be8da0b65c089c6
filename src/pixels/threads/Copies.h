// What the turns of a loop need for themselves, such as a table that is filled as it is used: each thread borrows one.
#pragma once
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace velara {

template <class T> class Copies {
  public:
    explicit Copies(std::function<T()> make) : make_(std::move(make)) {}

    /// use(T&) with one that no other thread has meanwhile. Where use throws it is not used again.
    template <class Use> void lend(Use&& use)
    {
        std::unique_ptr<T> own = take();
        use(*own);
        const std::lock_guard lock(guard_);
        free_.push_back(std::move(own));
    }

  private:
    std::unique_ptr<T> take()
    {
        {
            const std::lock_guard lock(guard_);
            if (!free_.empty()) {
                std::unique_ptr<T> last = std::move(free_.back());
                free_.pop_back();
                return last;
            }
        }
        return std::unique_ptr<T>(new T(make_())); // T need not be movable
    }

    const std::function<T()> make_;
    std::mutex guard_;
    std::vector<std::unique_ptr<T>> free_;
};

} // namespace velara

// Journal: what the monkey did, one line per action, in a file that outlives its process.
#pragma once
#include <QString>
#include <cstdint>

namespace velara::monkey {

class Journal {
  public:
    explicit Journal(const QString& path);
    ~Journal();
    Journal(const Journal&) = delete;

    /// Begins the line of an action; depth is the number of actions under way, including this one.
    void begin(std::uint64_t action, int depth);
    /// Continues the line.
    void add(const QString& text);

    /// The last lines of a journal.
    static QString tail(const QString& path, int lines);

  private:
    int file_;
};

} // namespace velara::monkey

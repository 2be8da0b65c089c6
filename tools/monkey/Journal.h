// Journal: what the monkey did, a line an action, in a file that outlives its process.
#pragma once
#include <QString>
#include <cstdint>

namespace velara::monkey {

class Journal {
  public:
    explicit Journal(const QString& path);
    ~Journal();
    Journal(const Journal&) = delete;

    /// Begins the line of an action; depth is how many actions are still under way, this one included.
    void begin(std::uint64_t action, int depth);
    /// Goes on with the line.
    void add(const QString& text);

    /// The last so many lines of a journal.
    static QString tail(const QString& path, int lines);

  private:
    int file_;
};

} // namespace velara::monkey

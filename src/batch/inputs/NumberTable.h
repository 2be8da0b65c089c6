// NumberTable: finds numbers by keys that it doesn't keep: 16 to 32 bytes each, whatever the keys.
#pragma once
#include <cstdint>
#include <string_view>
#include <vector>

namespace velara {

class NumberTable {
  public:
    /// The number that was put in with an equal key; -1: none. isEqual(number) compares the keys themselves.
    template <class IsEqual> int find(std::string_view key, IsEqual isEqual) const
    {
        return slots_.empty() ? -1 : slots_[slotOf(tagOf(key), isEqual)].number;
    }
    /// The same; where there is none, number, from 0, is put in.
    template <class IsEqual> int findOrPut(std::string_view key, int number, IsEqual isEqual)
    {
        if (++count_ * 2 > slots_.size()) grow();
        const std::uint32_t tag = tagOf(key);
        Slot& slot = slots_[slotOf(tag, isEqual)];
        if (slot.number >= 0) return --count_, slot.number;
        slot = {tag, number};
        return -1;
    }

  private:
    struct Slot {
        std::uint32_t tag = 0;
        std::int32_t number = -1;
    };
    static std::uint32_t tagOf(std::string_view key)
    {
        return static_cast<std::uint32_t>(std::hash<std::string_view>()(key));
    }
    /// Where it stands, or the free place for it.
    template <class IsEqual> std::size_t slotOf(std::uint32_t tag, IsEqual isEqual) const
    {
        std::size_t at = tag & (slots_.size() - 1);
        while (slots_[at].number >= 0 && !(slots_[at].tag == tag && isEqual(slots_[at].number)))
            at = (at + 1) & (slots_.size() - 1);
        return at;
    }
    void grow()
    {
        std::vector<Slot> before(slots_.empty() ? 64 : slots_.size() * 2);
        before.swap(slots_);
        for (const Slot& slot : before)
            if (slot.number >= 0) slots_[slotOf(slot.tag, [](int) { return false; })] = slot;
    }

    std::vector<Slot> slots_; // a power of two of them, at most half in use
    std::size_t count_ = 0;
};

/// The bytes of a plain record as a key.
template <class Record> std::string_view keyOf(const Record& record)
{
    static_assert(std::has_unique_object_representations_v<Record>);
    return {reinterpret_cast<const char*>(&record), sizeof record};
}

} // namespace velara

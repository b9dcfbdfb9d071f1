// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <utility>

/// A singly linked list that owns its records, which hold the next one in their member `Next`. A record stays
/// where it is until the list is cleared.
template<typename Record, Record *Record::*Next = &Record::pNext>
class RecordList
{
    template<typename R>
    struct Walk {
        R *at;
        R &operator*() const { return *at; }
        Walk &operator++()
        {
            at = at->*Next;
            return *this;
        }
        bool operator!=(const Walk &other) const { return at != other.at; }
    };

public:
    RecordList() = default;
    RecordList(RecordList &&other) noexcept { *this = std::move(other); }
    RecordList &operator=(RecordList &&other) noexcept
    {
        std::swap(head, other.head);
        std::swap(tail, other.tail);
        return *this;
    }
    ~RecordList() { clear(); }

    bool isEmpty() const { return !head; }
    Walk<Record> begin() { return {head}; }
    Walk<Record> end() { return {nullptr}; }
    Walk<const Record> begin() const { return {head}; }
    Walk<const Record> end() const { return {nullptr}; }

    /// The first record of which `matches` is true; null if there is none.
    template<typename Matches>
    const Record *find(Matches matches) const
    {
        for (const Record &record : *this) {
            if (matches(record))
                return &record;
        }
        return nullptr;
    }

    Record &append(Record record = Record())
    {
        auto *added = new Record(std::move(record));
        (tail ? tail->*Next : head) = added;
        tail = added;
        return *added;
    }

    void clear()
    {
        while (head)
            delete std::exchange(head, head->*Next);
        tail = nullptr;
    }

    Record *head = nullptr; ///< null while the list is empty, as is the tail
    Record *tail = nullptr;
};

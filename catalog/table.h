// The records of a table, which lie in several files, in the order of their list.
#pragma once

#include <cstddef>
#include <iterator>

namespace tintvert::catalog {

template <class Record>
class Table {
public:
    class Iterator {
    public:
        using value_type = Record;
        using difference_type = ptrdiff_t;
        using reference = const Record&;
        using pointer = const Record*;
        using iterator_category = std::forward_iterator_tag;

        Iterator() = default;
        explicit Iterator(const Record* const* at) : at_(at) {}
        reference operator*() const { return **at_; }
        pointer operator->() const { return *at_; }
        Iterator& operator++() { return ++at_, *this; }
        Iterator operator++(int) { return Iterator(at_++); }
        bool operator==(const Iterator&) const = default;

    private:
        const Record* const* at_ = nullptr;
    };

    constexpr Table(const Record* const* first, size_t count) : first_(first), count_(count) {}
    Iterator begin() const { return Iterator(first_); }
    Iterator end() const { return Iterator(first_ + count_); }
    size_t size() const { return count_; }
    const Record& operator[](size_t index) const { return *first_[index]; }

private:
    const Record* const* first_;
    size_t count_;
};

}  // namespace tintvert::catalog

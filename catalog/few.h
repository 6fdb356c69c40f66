// A list of a few items, written between braces in a record.
#pragma once

#include <cstddef>
#include <initializer_list>

namespace tintvert::catalog {

template <class Type, size_t most>
class Few {
public:
    constexpr Few() = default;
    constexpr Few(std::initializer_list<Type> items)
    {
        for (const Type& item : items) items_[count_++] = item;
    }

    constexpr const Type* begin() const { return items_; }
    constexpr const Type* end() const { return items_ + count_; }
    constexpr size_t size() const { return count_; }
    constexpr bool empty() const { return count_ == 0; }
    constexpr const Type& operator[](size_t index) const { return items_[index]; }

private:
    Type items_[most] = {};
    size_t count_ = 0;
};

}  // namespace tintvert::catalog

// The algorithms over ranges that the sources use, for a C++ library that lacks them. They take and give what those of the
// standard do, as far as it is used.
#pragma once

#ifdef __cplusplus

#include <algorithm>
#include <functional>
#include <iterator>
#include <utility>

namespace std::ranges // NOLINT(cert-dcl58-cpp): the missing half of the library
{

template <class TEST, class PROJECTION>
constexpr auto lytTestOf(TEST& test, PROJECTION& projection)
{
    return [&](auto&& item) -> bool
    { return std::invoke(test, std::invoke(projection, std::forward<decltype(item)>(item))); };
}

template <class ORDER, class PROJECTION>
constexpr auto lytOrderOf(ORDER& order, PROJECTION& projection)
{
    return [&](auto&& left, auto&& right) -> bool
    { return std::invoke(order, std::invoke(projection, left), std::invoke(projection, right)); };
}

template <class VALUE, class PROJECTION>
constexpr auto lytIs(const VALUE& value, PROJECTION& projection)
{
    return [&](auto&& item) -> bool { return std::invoke(projection, std::forward<decltype(item)>(item)) == value; };
}

template <class RANGE, class TEST, class PROJECTION = std::identity>
constexpr auto find_if(RANGE&& range, TEST test, PROJECTION projection = {})
{
    return std::find_if(std::begin(range), std::end(range), lytTestOf(test, projection));
}

template <class RANGE, class VALUE, class PROJECTION = std::identity>
constexpr auto find(RANGE&& range, const VALUE& value, PROJECTION projection = {})
{
    return std::find_if(std::begin(range), std::end(range), lytIs(value, projection));
}

template <class RANGE, class TEST, class PROJECTION = std::identity>
constexpr bool any_of(RANGE&& range, TEST test, PROJECTION projection = {})
{
    return std::any_of(std::begin(range), std::end(range), lytTestOf(test, projection));
}

template <class RANGE, class TEST, class PROJECTION = std::identity>
constexpr bool all_of(RANGE&& range, TEST test, PROJECTION projection = {})
{
    return std::all_of(std::begin(range), std::end(range), lytTestOf(test, projection));
}

template <class RANGE, class TEST, class PROJECTION = std::identity>
constexpr bool none_of(RANGE&& range, TEST test, PROJECTION projection = {})
{
    return std::none_of(std::begin(range), std::end(range), lytTestOf(test, projection));
}

template <class RANGE, class TEST, class PROJECTION = std::identity>
constexpr auto count_if(RANGE&& range, TEST test, PROJECTION projection = {})
{
    return std::count_if(std::begin(range), std::end(range), lytTestOf(test, projection));
}

template <class RANGE, class VALUE, class PROJECTION = std::identity>
constexpr auto count(RANGE&& range, const VALUE& value, PROJECTION projection = {})
{
    return std::count_if(std::begin(range), std::end(range), lytIs(value, projection));
}

template <class RANGE, class FUNCTION>
constexpr void for_each(RANGE&& range, FUNCTION function)
{
    std::for_each(std::begin(range), std::end(range), function);
}

template <class RANGE, class OUTPUT>
constexpr void copy(RANGE&& range, OUTPUT output)
{
    std::copy(std::begin(range), std::end(range), output);
}

template <class RANGE, class OUTPUT>
constexpr void move(RANGE&& range, OUTPUT output)
{
    std::move(std::begin(range), std::end(range), output);
}

template <class RANGE, class OUTPUT, class TEST, class PROJECTION = std::identity>
constexpr void copy_if(RANGE&& range, OUTPUT output, TEST test, PROJECTION projection = {})
{
    std::copy_if(std::begin(range), std::end(range), output, lytTestOf(test, projection));
}

template <class RANGE, class OUTPUT, class FUNCTION, class PROJECTION = std::identity>
constexpr void transform(RANGE&& range, OUTPUT output, FUNCTION function, PROJECTION projection = {})
{
    std::transform(std::begin(range), std::end(range), output,
                   [&](auto&& item) -> decltype(auto)
                   { return std::invoke(function, std::invoke(projection, std::forward<decltype(item)>(item))); });
}

template <class RANGE, class VALUE, class OTHER>
constexpr void replace(RANGE&& range, const VALUE& from, const OTHER& to)
{
    std::replace(std::begin(range), std::end(range), from, to);
}

template <class RANGE>
constexpr void reverse(RANGE&& range)
{
    std::reverse(std::begin(range), std::end(range));
}

template <class RANGE, class ORDER = less, class PROJECTION = std::identity>
constexpr void sort(RANGE&& range, ORDER order = {}, PROJECTION projection = {})
{
    std::sort(std::begin(range), std::end(range), lytOrderOf(order, projection));
}

template <class RANGE, class ORDER = less, class PROJECTION = std::identity>
constexpr void stable_sort(RANGE&& range, ORDER order = {}, PROJECTION projection = {})
{
    std::stable_sort(std::begin(range), std::end(range), lytOrderOf(order, projection));
}

template <class RANGE, class ORDER = less, class PROJECTION = std::identity>
constexpr auto min_element(RANGE&& range, ORDER order = {}, PROJECTION projection = {})
{
    return std::min_element(std::begin(range), std::end(range), lytOrderOf(order, projection));
}

template <class RANGE, class VALUE>
constexpr bool binary_search(RANGE&& range, const VALUE& value)
{
    return std::binary_search(std::begin(range), std::end(range), value);
}

template <class RANGE, class TEST, class PROJECTION = std::identity>
constexpr auto adjacent_find(RANGE&& range, TEST test, PROJECTION projection = {})
{
    return std::adjacent_find(std::begin(range), std::end(range), lytOrderOf(test, projection));
}

template <class RANGE, class OTHER, class TEST = equal_to, class LEFT = std::identity, class RIGHT = std::identity>
constexpr bool equal(RANGE&& range, OTHER&& other, TEST test = {}, LEFT ofRange = {}, RIGHT ofOther = {})
{
    return std::equal(std::begin(range), std::end(range), std::begin(other), std::end(other),
                      [&](auto&& left, auto&& right) -> bool
                      { return std::invoke(test, std::invoke(ofRange, left), std::invoke(ofOther, right)); });
}

} // namespace std::ranges

#endif

#pragma once

#include <initializer_list>
#include <random>
#include <string>

/// One of the values, by chance. Name a value twice to have it twice as often.
template <typename T>
T pick(std::mt19937& random, std::initializer_list<T> values)
{
    return *(values.begin() + random() % values.size());
}

/// One of the texts, by chance.
inline std::string pickText(std::mt19937& random, std::initializer_list<std::string> texts)
{
    return pick(random, texts);
}

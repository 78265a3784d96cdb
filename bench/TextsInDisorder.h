// The texts that the benchmarks of many values give to a smart combo box.
#pragma once

#include <afx.h>

#include <algorithm>
#include <random>
#include <vector>

namespace bench
{

/// So many different texts, the same ones in the same disorder each time.
inline std::vector<CString> textsInDisorder(int count)
{
    std::vector<CString> texts;
    for (int i = 0; i < count; ++i)
    {
        CString text;
        text.Format(i % 3 == 0 ? L"Poutre %06d" : L"poteau %06d", i);
        texts.push_back(text);
    }
    std::shuffle(texts.begin(), texts.end(), std::mt19937(20240620)); // a fixed seed
    return texts;
}

} // namespace bench

// Whether what is created and destroyed again and again leaves a handle behind.
#pragma once
#include <gtest/gtest.h>

#include <ostream>

#include "support/LeakCounters.h"
#include "support/RealInput.h"

/// How many handles of each kind there are.
struct Handles
{
    int windows = windowCount(), objects = gdiObjectCount(), kernel = kernelHandleCount(), others = menuAndIconCount();
    bool operator==(const Handles&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Handles& handles)
{
    return out << handles.windows << " windows, " << handles.objects << " drawing objects, " << handles.kernel
               << " kernel handles, " << handles.others << " menus and icons";
}

/// Uses something in many rounds, told the number of the round. What the first rounds leave belongs to the platform.
template <class Use> void expectNoHandleLeft(int rounds, const Use& use)
{
    constexpr int first = 20;
    for (int round = 0; round < first; ++round)
        use(round);
    pumpFor(50);
    const Handles before;
    for (int round = 0; round < rounds; ++round)
        use(round);
    pumpFor(50);
    EXPECT_EQ(Handles(), before);
}

// Sending a message to a control, with arguments and answers of any kind that fits.
#pragma once
#include <type_traits>

#include <windows.h>

namespace kx
{

/// A pointer, handle or number as it travels in a message.
template <class Value> LPARAM asParam(Value value)
{
    if constexpr (std::is_null_pointer_v<Value>)
        return 0;
    else if constexpr (std::is_pointer_v<Value>)
        return reinterpret_cast<LPARAM>(value);
    else
        return static_cast<LPARAM>(value);
}

/// Sends a message; the answer of a missing window is 0.
template <class Answer = LRESULT, class First = int, class Second = int>
Answer ask(HWND window, UINT message, First first = {}, Second second = {})
{
    const LRESULT answer = ::SendMessageW(window, message, static_cast<WPARAM>(asParam(first)), asParam(second));
    if constexpr (std::is_void_v<Answer>)
        return;
    else if constexpr (std::is_pointer_v<Answer>)
        return reinterpret_cast<Answer>(answer);
    else
        return static_cast<Answer>(answer);
}

} // namespace kx

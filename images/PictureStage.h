// What the window and its worker share: the canvas, the frames, and the order to stop.
#pragma once

#include <afxwin.h>

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include "DecodedPicture.h"
#include "GlobalBlock.h"
#include "MemoryDc.h"

/// A picture of an animation, with its place on the canvas in pixels.
struct FrameRecord
{
    DecodedPicture picture;
    LONG cx;
    LONG cy;
    LONG x;
    LONG y;
    UINT delay; // hundredths of a second
    UINT disposal;
};

/// A bitmap of its own in a memory context.
class OffScreen
{
public:
    OffScreen(HDC like, int cx, int cy) : m_bitmap(::CreateCompatibleBitmap(like, cx, cy)), m_dc(like, m_bitmap.get())
    {
    }

    bool ready() const { return m_dc.ready(); }
    HDC dc() const { return m_dc.handle(); }

private:
    OwnedBitmap m_bitmap;
    MemoryDc m_dc;
};

/// One load of a picture. The canvas is touched by one thread at a time; the frames do not change while a worker plays them.
/// Whoever leaves last, the window or its worker, ends the object.
class PictureStage
{
public:
    PictureStage();

    // For the window's thread.
    /// Makes the canvas; false when there is no memory for it.
    bool Prepare(HDC like, int cx, int cy);
    bool IsReady() const { return m_canvas != nullptr; }
    void SetBackground(COLORREF color);
    bool DrawStill();
    /// Copies what `paint` says (see PlayRules) to the left top corner.
    void CopyTo(HDC target, const RECT& paint);

    void RequestStop();
    /// Takes the request back, when the worker has left.
    void Resume();
    bool IsStopRequested() const { return m_bStopRequest; }

    // For the worker.
    /// Plays from the current frame on until it is to stop. `window` is told of every frame; it may be null.
    void Play(HWND window);

    std::atomic<bool> m_bPlaying = false;
    std::atomic<COLORREF> m_crBackground = RGB(255, 255, 255);
    DecodedPicture m_stillPicture{};
    std::vector<FrameRecord> m_Frames{};

private:
    class Access;

    bool ShowFrame(const FrameRecord& frame);
    void DisposeOf(const FrameRecord& frame);
    void Advance();
    void Fill(const RECT& area);

    const KernelHandle m_hStopEvent;
    std::atomic<bool> m_bStopRequest = false;
    std::mutex m_drawing;
    std::unique_ptr<OffScreen> m_canvas;
    std::optional<OffScreen> m_saved{}; // what lay under a frame that is taken away again
    SIZE m_size = {};
    std::uint32_t m_nCurrentFrame = 0;
};

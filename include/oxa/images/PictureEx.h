// CPictureEx: a static control that shows a picture, and plays an animated GIF.
#pragma once

#include <afxwin.h>

#include <memory>
#include <type_traits>

#include "oxa/Export.h"
#include "oxa/images/GifBlockWalker.h"

class PictureStage;

/// Shows what the platform's picture loader understands; a GIF of two or more frames plays on a thread of its own.
///
///     CPictureEx picture;
///     picture.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 1, 1), this);
///     if (picture.Load(IDR_WAIT, L"GIF"))
///         picture.Draw();
///
/// A load gives the control the size of the picture. Until `Draw` the canvas is blank, in the menu colour. An animation
/// never ends by itself: it runs, whatever loop count the stream gives, until `Stop`, `UnLoad`, the next load or the end of
/// the window. All operations belong to the window's thread. It sends no messages; failures are told by FALSE alone, and
/// what a failed load leaves goes with the next one.
///
/// Messages handled: WM_PAINT, WM_DESTROY (stops the animation; the picture stays loaded).
class OXA_API CPictureEx : public CStatic
{
public:
    CPictureEx();
    ~CPictureEx() override;

    /// Unloads, then reads a picture from a memory block, which stays the caller's and is not needed afterwards.
    /// @param size bytes of the stream; no more than the block has are read
    /// @return FALSE when the block cannot be locked, the loader refuses the picture, a GIF has no frame, or there is no
    ///         memory for the canvas. Frames of an animation that the loader refuses are left out.
    ///
    /// A canvas or a frame of more than 16,384 by 16,384 pixels is refused, and so are frames of an animation beyond 2^30
    /// pixels in all: a few bytes can claim any size. Damaged bitmaps, icons and metafiles are refused as in CKxPictureEx.
    BOOL Load(HGLOBAL hGlobal, DWORD size);
    /// The same from a file, opened for reading while others may not write. When it cannot be read, the old picture stays.
    BOOL Load(LPCTSTR fileName);
    /// The same from a resource of the current resource module. When there is none, the old picture stays.
    BOOL Load(LPCTSTR resourceName, LPCTSTR resourceType);
    /// Stops, and forgets the picture, the paint rectangle and the background colour.
    void UnLoad();

    /// Shows a still picture: TRUE when it could be drawn. Or starts the animation where it was stopped, and then the result
    /// is FALSE too: ask `IsPlaying`. Nothing happens when it already plays, and FALSE without a picture.
    BOOL Draw();
    /// Ends the animation; the last frame stays in sight. It returns at once, also while a frame stands for ever, and after 5
    /// seconds at most should the platform not come back from drawing a frame; `Draw` then starts nothing until it has.
    void Stop();

    /// The picture's size in pixels: for a GIF that of its screen. `UnLoad` leaves it.
    SIZE GetSize() const;
    /// The last load met a stream that begins with "GIF".
    BOOL IsGIF() const;
    BOOL IsPlaying() const;
    /// A GIF of two or more frames that could be loaded.
    BOOL IsAnimatedGIF() const;
    /// Frames of an animated GIF, else 0.
    int GetFrameCount() const;

    /// The colour of the areas that a frame leaves empty, and of the canvas between two rounds: the system's face colour
    /// after each load. With a picture loaded it also fills the whole canvas, without a repaint; otherwise it does nothing.
    void SetBkColor(COLORREF color);
    /// The part of the canvas, in its pixels, that is shown in the left top corner of the window; one that is less than a
    /// pixel wide shows everything. It takes effect with the next paint. FALSE for a null pointer.
    BOOL SetPaintRect(const RECT* rect);
    BOOL GetPaintRect(RECT* rect) const;

protected:
    // The walk over the stream, while it is loaded; without a stream nothing is found.
    void ResetDataPointer() { m_walker.ResetDataPointer(); }
    BOOL SkipNextBlock() { return m_walker.SkipNextBlock(); }
    BOOL SkipNextGraphicBlock() { return m_walker.SkipNextGraphicBlock(); }
    GIFBlockTypes GetNextBlock() const { return m_walker.GetNextBlock(); }
    int GetNextBlockLen() const { return m_walker.GetNextBlockLen(); }
    int GetSubBlocksLen(UINT startingOffset) const { return m_walker.GetSubBlocksLen(startingOffset); }
    /// The next frame as a GIF of its own, in a fixed block that the caller frees, or null. `size` and `offset` stay as they
    /// are for a plain text block; `delay` is 0xFFFFFFFF without a control block.
    HGLOBAL GetNextGraphicBlock(UINT* length, UINT* delay, SIZE* size, SIZE* offset, UINT* disposal);

    /// Gives the control and its canvas a size.
    BOOL PrepareDC(int cx, int cy);
    static void ThreadAnimation(PictureStage& stage, HWND window);
    static unsigned __stdcall _ThreadAnimation(void* start);

    void OnPaint();
    void OnDestroy();

    DECLARE_MESSAGE_MAP()

    struct CloseWorker
    {
        void operator()(HANDLE worker) const { ::CloseHandle(worker); }
    };

    RECT m_rcPaint = {};
    SIZE m_sizePicture = {};
    BOOL m_bGif = FALSE;
    GifBlockWalker m_walker{};
    std::shared_ptr<PictureStage> m_stage; // shared with the worker
    std::unique_ptr<std::remove_pointer_t<HANDLE>, CloseWorker> m_hWorker{};

private:
    BOOL LoadStill(const void* data, DWORD size, bool takeSize);
    BOOL LoadGif(const BYTE* data, DWORD size);
    void LoadFrames();
    void StartWorker();
    bool WaitForWorker(DWORD milliseconds);
};

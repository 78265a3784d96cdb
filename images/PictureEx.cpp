// Loads pictures, starts and stops the worker, paints.
#include "oxa/images/PictureEx.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include <process.h>

#include "ClientContext.h"
#include "GlobalBlock.h"
#include "PictureStage.h"
#include "PlayRules.h"

namespace
{
constexpr DWORD longestStop = 5000; // milliseconds

struct WorkerStart
{
    std::shared_ptr<PictureStage> stage;
    HWND window;
};

/// A movable block with a file's bytes, or null.
OwnedBlock readFile(LPCTSTR fileName, DWORD& size)
{
    const KernelHandle file =
        fileName == nullptr ? nullptr : openFile(fileName, GENERIC_READ, FILE_SHARE_READ, OPEN_EXISTING);
    LARGE_INTEGER length = {};
    if (file == nullptr || !::GetFileSizeEx(file.get(), &length) || length.HighPart != 0)
    {
        return nullptr;
    }
    OwnedBlock block(::GlobalAlloc(GMEM_MOVEABLE, length.LowPart));
    const LockedBlock locked(block.get());
    if (locked.bytes() == nullptr || !::ReadFile(file.get(), locked.bytes(), length.LowPart, &size, nullptr) ||
        size != length.LowPart)
    {
        return nullptr;
    }
    return block;
}

OwnedBlock readResource(LPCTSTR name, LPCTSTR type, DWORD& size)
{
    const HINSTANCE module = AfxGetResourceHandle();
    const HRSRC found = module == nullptr ? nullptr : ::FindResourceW(module, name, type);
    const HGLOBAL loaded = found == nullptr ? nullptr : ::LoadResource(module, found);
    const void* const data = loaded == nullptr ? nullptr : ::LockResource(loaded);
    if (data == nullptr)
    {
        return nullptr;
    }
    size = ::SizeofResource(module, found);
    return movableCopy(data, size);
}
} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(CPictureEx, CStatic)
    // void OnDestroy()
    ON_WM_DESTROY()
    // void OnPaint()
    ON_WM_PAINT()
END_MESSAGE_MAP()
// clang-format on

CPictureEx::CPictureEx() : m_stage(std::make_shared<PictureStage>()) {}

CPictureEx::~CPictureEx()
{
    Stop();
}

BOOL CPictureEx::Load(HGLOBAL hGlobal, DWORD size)
{
    UnLoad();
    const LockedBlock locked(hGlobal);
    const auto* const data = static_cast<const BYTE*>(locked.bytes());
    if (data == nullptr)
    {
        return FALSE;
    }
    const auto there = static_cast<DWORD>(std::min<SIZE_T>(size, ::GlobalSize(hGlobal)));
    m_bGif = GifBlockWalker::IsGif(data, there);
    return m_bGif ? LoadGif(data, there) : LoadStill(data, there, true);
}

BOOL CPictureEx::Load(LPCTSTR fileName)
{
    DWORD size = 0;
    const OwnedBlock block = readFile(fileName, size);
    return block != nullptr && Load(block.get(), size);
}

BOOL CPictureEx::Load(LPCTSTR resourceName, LPCTSTR resourceType)
{
    DWORD size = 0;
    const OwnedBlock block = readResource(resourceName, resourceType, size);
    return block != nullptr && Load(block.get(), size);
}

BOOL CPictureEx::LoadStill(const void* data, DWORD size, bool takeSize)
{
    DecodedPicture picture = DecodedPicture::fromMemory(data, size);
    if (!picture.exists())
    {
        return FALSE;
    }
    if (takeSize)
    {
        const auto measure = [&](HDC dc)
        {
            m_sizePicture = picture.pixels(dc);
            return 1;
        };
        if (loadOnClientOf(this, measure) == 0)
        {
            return FALSE;
        }
    }
    m_stage->m_stillPicture = std::move(picture);
    return PrepareDC(m_sizePicture.cx, m_sizePicture.cy);
}

BOOL CPictureEx::LoadGif(const BYTE* data, DWORD size)
{
    m_walker = GifBlockWalker(data, size);
    const GifScreen screen = m_walker.Screen();
    m_sizePicture = {screen.width, screen.height};
    if (screen.hasTable)
    {
        m_stage->m_crBackground = screen.background;
    }
    int count = 0;
    while (SkipNextGraphicBlock())
    {
        ++count;
    }
    if (count > 1)
    {
        LoadFrames();
    }
    m_walker = GifBlockWalker();
    if (count == 1)
    {
        return LoadStill(data, size, false);
    }
    return !m_stage->m_Frames.empty() && PrepareDC(m_sizePicture.cx, m_sizePicture.cy);
}

void CPictureEx::LoadFrames()
{
    ResetDataPointer();
    UINT length = 0;
    UINT delay = 0;
    UINT disposal = 0;
    SIZE size = {};
    SIZE offset = {};
    std::int64_t pixelsLeft = PlayRules::MostFramePixels;
    while (const OwnedBlock block{GetNextGraphicBlock(&length, &delay, &size, &offset, &disposal)})
    {
        const std::int64_t pixels = PlayRules::PixelsOf(size.cx, size.cy);
        if (pixels > pixelsLeft || !PlayRules::IsCanvas(size.cx, size.cy))
        {
            continue;
        }
        DecodedPicture picture = DecodedPicture::fromMemory(block.get(), length);
        if (picture.exists())
        {
            pixelsLeft -= pixels;
            m_stage->m_Frames.push_back({std::move(picture), size.cx, size.cy, offset.cx, offset.cy, delay, disposal});
        }
    }
}

HGLOBAL CPictureEx::GetNextGraphicBlock(UINT* length, UINT* delay, SIZE* size, SIZE* offset, UINT* disposal)
{
    GifFrameBlock frame;
    frame.cx = size->cx;
    frame.cy = size->cy;
    frame.x = offset->cx;
    frame.y = offset->cy;
    const bool found = m_walker.FindNextGraphicBlock(frame);
    *disposal = frame.disposal;
    const std::uint64_t total = m_walker.AssembledSize(frame);
    if (!found || total > std::numeric_limits<UINT>::max())
    {
        return nullptr;
    }
    *delay = frame.delay;
    *size = {frame.cx, frame.cy};
    *offset = {frame.x, frame.y};
    const HGLOBAL block = ::GlobalAlloc(GMEM_FIXED, total);
    if (block != nullptr)
    {
        m_walker.Assemble(frame, static_cast<BYTE*>(block)); // the handle of a fixed block is its address
        *length = static_cast<UINT>(total);
    }
    return block;
}

BOOL CPictureEx::PrepareDC(int cx, int cy)
{
    const std::shared_ptr<PictureStage> stage = m_stage;
    SetWindowPos(nullptr, 0, 0, cx, cy, SWP_NOMOVE | SWP_NOZORDER);
    if (stage != m_stage)
    {
        return FALSE; // a handler of the new size loaded another picture
    }
    return loadOnClientOf(this, [&](HDC dc) { return stage->Prepare(dc, cx, cy) ? 1 : 0; });
}

void CPictureEx::UnLoad()
{
    Stop();
    m_hWorker.reset(); // one that is still there keeps the old stage, and ends it
    m_stage = std::make_shared<PictureStage>();
    m_walker = GifBlockWalker();
    m_rcPaint = {};
    m_bGif = FALSE;
}

BOOL CPictureEx::Draw()
{
    if (!m_stage->IsReady())
    {
        return FALSE;
    }
    if (IsAnimatedGIF())
    {
        StartWorker();
        return FALSE; // kept on purpose: IsPlaying tells whether it plays
    }
    if (!m_stage->DrawStill())
    {
        return FALSE;
    }
    if (m_hWnd != nullptr)
    {
        Invalidate(FALSE);
    }
    return TRUE;
}

void CPictureEx::StartWorker()
{
    if (m_hWorker != nullptr && !(m_stage->IsStopRequested() && WaitForWorker(0)))
    {
        return;
    }
    auto start = std::make_unique<WorkerStart>(WorkerStart{m_stage, m_hWnd});
    const std::uintptr_t worker =
        ::_beginthreadex(nullptr, 0, _ThreadAnimation, start.get(), CREATE_SUSPENDED, nullptr);
    if (worker == 0)
    {
        return;
    }
    static_cast<void>(start.release());
    m_hWorker.reset(reinterpret_cast<HANDLE>(worker));
    m_stage->m_bPlaying = true;
    ::ResumeThread(m_hWorker.get());
}

unsigned __stdcall CPictureEx::_ThreadAnimation(void* start)
{
    const std::unique_ptr<WorkerStart> given(static_cast<WorkerStart*>(start));
    ThreadAnimation(*given->stage, given->window);
    given->stage->m_bPlaying = false;
    return 0;
}

void CPictureEx::ThreadAnimation(PictureStage& stage, HWND window)
{
    stage.Play(window);
}

void CPictureEx::Stop()
{
    if (m_hWorker != nullptr)
    {
        m_stage->RequestStop();
        WaitForWorker(longestStop);
    }
}

bool CPictureEx::WaitForWorker(DWORD milliseconds)
{
    if (::WaitForSingleObject(m_hWorker.get(), milliseconds) != WAIT_OBJECT_0)
    {
        return false;
    }
    m_hWorker.reset();
    m_stage->Resume();
    return true;
}

SIZE CPictureEx::GetSize() const
{
    return m_sizePicture;
}

BOOL CPictureEx::IsGIF() const
{
    return m_bGif;
}

BOOL CPictureEx::IsPlaying() const
{
    return m_stage->m_bPlaying;
}

BOOL CPictureEx::IsAnimatedGIF() const
{
    return m_bGif && m_stage->m_Frames.size() >= 2;
}

int CPictureEx::GetFrameCount() const
{
    return IsAnimatedGIF() ? static_cast<int>(m_stage->m_Frames.size()) : 0;
}

void CPictureEx::SetBkColor(COLORREF color)
{
    if (m_stage->IsReady())
    {
        m_stage->SetBackground(color);
    }
}

BOOL CPictureEx::SetPaintRect(const RECT* rect)
{
    return ::CopyRect(&m_rcPaint, rect);
}

BOOL CPictureEx::GetPaintRect(RECT* rect) const
{
    return ::CopyRect(rect, &m_rcPaint);
}

void CPictureEx::OnPaint()
{
    CPaintDC dc(this);
    m_stage->CopyTo(dc.GetSafeHdc(), m_rcPaint);
}

void CPictureEx::OnDestroy()
{
    Stop();
    CStatic::OnDestroy();
}

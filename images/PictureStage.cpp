// Draws frames on the canvas and takes them away again, in their time.
#include "PictureStage.h"

#include "PlayRules.h"

/// The canvas for one thread, and everything drawn on it when the next one comes.
class PictureStage::Access
{
public:
    explicit Access(PictureStage& stage) : m_guard(stage.m_drawing) {}
    Access(const Access&) = delete;
    Access& operator=(const Access&) = delete;
    ~Access() { ::GdiFlush(); }

private:
    std::lock_guard<std::mutex> m_guard;
};

PictureStage::PictureStage() : m_hStopEvent(::CreateEventW(nullptr, TRUE, FALSE, nullptr)) {}

bool PictureStage::Prepare(HDC like, int cx, int cy)
{
    if (!PlayRules::IsCanvas(cx, cy))
    {
        return false;
    }
    auto canvas = std::make_unique<OffScreen>(like, cx, cy);
    if (!canvas->ready())
    {
        return false;
    }
    const RECT all = {0, 0, cx, cy};
    ::FillRect(canvas->dc(), &all, reinterpret_cast<HBRUSH>(COLOR_MENU + 1));
    const Access access(*this);
    m_crBackground = ::GetSysColor(COLOR_BTNFACE); // kept on purpose: a stream's own colour does not survive
    m_canvas = std::move(canvas);
    m_size = {cx, cy};
    return true;
}

void PictureStage::SetBackground(COLORREF color)
{
    const Access access(*this);
    m_crBackground = color;
    Fill({0, 0, m_size.cx, m_size.cy});
}

bool PictureStage::DrawStill()
{
    const Access access(*this);
    return m_stillPicture.render(m_canvas->dc(), 0, 0, m_size.cx, m_size.cy, nullptr);
}

void PictureStage::CopyTo(HDC target, const RECT& paint)
{
    if (m_canvas == nullptr)
    {
        return;
    }
    const PlayRules::Part part = PlayRules::PartOf(paint, m_size);
    const Access access(*this);
    ::BitBlt(target, part.toX, part.toY, part.width, part.height, m_canvas->dc(), part.fromX, part.fromY, SRCCOPY);
}

void PictureStage::RequestStop()
{
    m_bPlaying = false;
    m_bStopRequest = true;
    ::SetEvent(m_hStopEvent.get());
}

void PictureStage::Resume()
{
    ::ResetEvent(m_hStopEvent.get());
    m_bStopRequest = false;
}

void PictureStage::Play(HWND window)
{
    DisposeOf(m_Frames[m_nCurrentFrame]);
    while (!m_bStopRequest)
    {
        const FrameRecord& frame = m_Frames[m_nCurrentFrame];
        if (ShowFrame(frame) && window != nullptr)
        {
            ::InvalidateRect(window, nullptr, FALSE);
        }
        if (m_bStopRequest)
        {
            return;
        }
        ::WaitForSingleObject(m_hStopEvent.get(), PlayRules::WaitOf(frame.delay));
        if (m_bStopRequest)
        {
            return;
        }
        DisposeOf(frame);
        Advance();
    }
}

bool PictureStage::ShowFrame(const FrameRecord& frame)
{
    const Access access(*this);
    if (frame.disposal == PlayRules::ToPrevious)
    {
        m_saved.emplace(m_canvas->dc(), frame.cx, frame.cy);
        if (m_saved->ready())
        {
            ::BitBlt(m_saved->dc(), 0, 0, frame.cx, frame.cy, m_canvas->dc(), frame.x, frame.y, SRCCOPY);
        }
        else
        {
            m_saved.reset();
        }
    }
    return frame.picture.render(m_canvas->dc(), frame.x, frame.y, frame.cx, frame.cy, nullptr);
}

void PictureStage::DisposeOf(const FrameRecord& frame)
{
    const Access access(*this);
    if (frame.disposal == PlayRules::ToBackground)
    {
        Fill({frame.x, frame.y, frame.x + frame.cx, frame.y + frame.cy});
    }
    else if (frame.disposal == PlayRules::ToPrevious && m_saved)
    {
        ::BitBlt(m_canvas->dc(), frame.x, frame.y, frame.cx, frame.cy, m_saved->dc(), 0, 0, SRCCOPY);
        m_saved.reset();
    }
}

void PictureStage::Advance()
{
    if (++m_nCurrentFrame < m_Frames.size())
    {
        return;
    }
    m_nCurrentFrame = 0;
    const Access access(*this);
    Fill({0, 0, m_size.cx, m_size.cy});
}

void PictureStage::Fill(const RECT& area)
{
    const OwnedBrush brush(::CreateSolidBrush(m_crBackground));
    ::FillRect(m_canvas->dc(), &area, brush.get());
}

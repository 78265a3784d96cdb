// The page of pictures: what its controls do. Everything that may take long runs on a thread and can be cancelled.
#include "PagePictures.h"
#include "PictureClaims.h"
#include "PlatformPicture.h"
#include "SamplePictures.h"
#include "resource.h"
#include <afxdlgs.h>

namespace
{
constexpr UINT_PTR workTimer = 1;
constexpr UINT workMilliseconds = 40;
constexpr DWORD shortWork = 120; // milliseconds: shorter work changes no control

CSize sizeOf(const CKxGifImage& image)
{
    return CSize(static_cast<int>(image.GetWidth()), static_cast<int>(image.GetHeight()));
}
} // namespace

BEGIN_MESSAGE_MAP(CPagePictures, CPage)
    // void OnOpen()
    ON_BN_CLICKED(IDC_OPEN_PICTURE, &CPagePictures::OnOpen)
    // void OnSample()
    ON_CBN_SELCHANGE(IDC_SAMPLE, &CPagePictures::OnSample)
    // void OnFrame(NMHDR* header, LRESULT* result)
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_FRAMES, &CPagePictures::OnFrame)
    // void OnFrameText(NMHDR* header, LRESULT* result)
    ON_NOTIFY(LVN_GETDISPINFO, IDC_FRAMES, &CPagePictures::OnFrameText)
    // void OnReduce()
    ON_BN_CLICKED(IDC_REDUCE, &CPagePictures::OnReduce)
    // void OnUndo()
    ON_BN_CLICKED(IDC_UNDO_REDUCTION, &CPagePictures::OnUndo)
    // void OnSave()
    ON_BN_CLICKED(IDC_SAVE_GIF, &CPagePictures::OnSave)
    // void OnCancelWork()
    ON_BN_CLICKED(IDC_CANCEL_WORK, &CPagePictures::OnCancelWork)
    // void OnTimer(UINT_PTR id)
    ON_WM_TIMER()
    // void OnDestroy()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

CPagePictures::CPagePictures() : CPage(IDD_PAGE_PICTURES, L"Pictures") {}

BOOL CPagePictures::OnInitDialog()
{
    CPage::OnInitDialog();
    m_samples.SubclassDlgItem(IDC_SAMPLE, this);
    m_bits.SubclassDlgItem(IDC_BITS, this);
    m_original.SubclassDlgItem(IDC_ORIGINAL, this);
    m_view.SubclassDlgItem(IDC_RESULT, this);
    m_palette.SubclassDlgItem(IDC_PALETTE, this);
    m_list.SubclassDlgItem(IDC_FRAMES, this);
    m_progress.SubclassDlgItem(IDC_WORK_PROGRESS, this);
    for (const SamplePicture& sample : samplePictures)
        m_samples.AddString(sample.title);
    prepareFrames();
    close();
    say(L"Open a picture file, or pick one of the samples.");
    return TRUE;
}

void CPagePictures::OnDestroy()
{
    m_work.abandon();
    CPage::OnDestroy();
}

// ---- opening

void CPagePictures::OnOpen()
{
    const CString folder = samplesFolder();
    CFileDialog dialog(TRUE, nullptr, nullptr, OFN_HIDEREADONLY | OFN_NOCHANGEDIR, pictureFilter, this);
    if (m_source.name.IsEmpty())
        dialog.m_ofn.lpstrInitialDir = folder;
    if (dialog.DoModal() != IDOK)
        return;
    m_samples.SetCurSel(-1);
    openFile(dialog.GetPathName());
}

void CPagePictures::OnSample()
{
    const int chosen = m_samples.GetCurSel();
    if (chosen < 0)
        return;
    const CWaitCursor wait;
    open(openSample(samplePictures[static_cast<size_t>(chosen)]));
}

void CPagePictures::openFile(const CString& path)
{
    const CWaitCursor wait;
    open(PictureSource::read(path));
}

void CPagePictures::open(PictureSource source)
{
    m_work.abandon();
    close();
    m_source = std::move(source);
    if (!m_source.trouble.IsEmpty())
        say(m_source.trouble);
    else if (!(m_source.isGif() ? openGif() : openOther()))
        m_source.bytes = {};
    enableControls();
}

bool CPagePictures::openGif()
{
    m_frames = listGifFrames(m_source.bytes);
    const CString refusal = refusalOfGif(m_source, m_frames);
    if (refusal.IsEmpty())
    {
        decodeFrame(Task::Open, 0);
        return true;
    }
    m_frames.clear();
    say(refusal);
    return false;
}

bool CPagePictures::openOther()
{
    const CSize size = platformSize(m_source.bytes);
    const CString refusal = refusalOfOther(m_source, size);
    if (refusal.IsEmpty())
        m_frame = platformPixels(m_source.bytes, size);
    if (!m_frame)
    {
        say(refusal.IsEmpty() ? L"There is not enough memory to show this picture." : refusal);
        return false;
    }
    say(L"Opened \"" + m_source.name + L"\" (" + grouped(m_source.bytes.size()) +
        L" bytes): the platform decodes it, and its pixels are handed to the image class.");
    showOriginal(size);
    showImage();
    return true;
}

/// Shows an empty page.
void CPagePictures::close()
{
    KillTimer(workTimer);
    m_source = {};
    m_frames.clear();
    m_frameNumber = 0;
    m_frame.reset();
    m_reduced.reset();
    showOriginal(CSize(0, 0));
    showFrames();
    showImage();
    enableControls();
}

// ---- frames, reduction, saving

void CPagePictures::decodeFrame(Task task, int frame)
{
    m_wantedFrame = frame;
    start(task, std::make_unique<CKxGifImage>(),
          [this, frame](CKxGifImage& image)
          {
              image.SetFrame(frame);
              return image.Decode(m_source.bytes.data(), static_cast<unsigned long>(m_source.bytes.size())) &&
                     image.IsValid();
          });
}

void CPagePictures::OnFrame(NMHDR* header, LRESULT* result)
{
    const auto* change = reinterpret_cast<const NMLISTVIEW*>(header);
    *result = 0;
    const bool selected = (change->uNewState & LVIS_SELECTED) != 0 && (change->uOldState & LVIS_SELECTED) == 0;
    if (selected && m_frame && (change->iItem != m_frameNumber || m_reduced))
        decodeFrame(Task::Frame, change->iItem);
}

void CPagePictures::OnReduce()
{
    const int chosen = m_bits.GetCurSel();
    if (!m_frame || chosen < 0 || m_work.running())
        return;
    const auto bits = static_cast<unsigned long>(m_bits.GetItemData(chosen));
    const bool diffuse = IsDlgButtonChecked(IDC_DIFFUSE) == BST_CHECKED;
    m_reduction.Format(L"Reduced to %lu bit%s %s error diffusion", bits, bits == 1 ? L"" : L"s",
                       diffuse ? L"with" : L"without");
    start(Task::Reduce, copyOf(*m_frame),
          [bits, diffuse](CKxGifImage& image) { return image.DecreaseBpp(bits, diffuse, nullptr, 0); });
}

void CPagePictures::OnUndo()
{
    m_reduced.reset();
    showImage();
    enableControls();
    say(L"The picture is as it was opened.");
}

void CPagePictures::OnSave()
{
    if (!shown() || m_work.running())
        return;
    if (shown()->GetWidth() > 0xFFFF || shown()->GetHeight() > 0xFFFF)
    {
        say(L"A GIF holds at most 65,535 by 65,535 pixels.");
        return;
    }
    const int dot = m_source.name.ReverseFind(L'.');
    const CString name = (dot < 0 ? m_source.name : m_source.name.Left(dot)) + L" copy.gif";
    CFileDialog dialog(FALSE, L"gif", name, OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT | OFN_NOCHANGEDIR,
                       L"GIF pictures|*.gif||", this);
    if (dialog.DoModal() != IDOK)
        return;
    m_savePath = dialog.GetPathName();
    m_saveTrouble.Empty();
    start(Task::Save, copyOf(*shown()),
          [this](CKxGifImage& image)
          {
              unsigned char* bytes = nullptr;
              long count = 0;
              if (!image.Encode(bytes, count))
                  return false;
              m_savedBytes = static_cast<size_t>(count);
              if (image.GetEscape() == 0)
                  m_saveTrouble = writeFile(m_savePath, bytes, m_savedBytes);
              image.FreeMemory(bytes);
              return true;
          });
}

std::unique_ptr<CKxGifImage> CPagePictures::copyOf(const CKxGifImage& image) const
{
    auto copy = std::make_unique<CKxGifImage>();
    *copy = image; // pixels and information; the rest belongs to the object
    char comment[256] = {};
    image.GetComment(comment);
    copy->SetComment(comment);
    copy->SetDisposalMethod(static_cast<int>(image.GetDisposalMethod()));
    copy->SetLoops(static_cast<int>(image.GetLoops()));
    return copy;
}

// ---- work

void CPagePictures::start(Task task, std::unique_ptr<CKxGifImage> image, PictureWork::Operation operation)
{
    m_task = task;
    m_work.start(std::move(image), std::move(operation));
    for (const DWORD begin = GetTickCount(); !m_work.done() && GetTickCount() - begin < shortWork;)
        Sleep(1);
    if (m_work.done())
    {
        finish();
        return;
    }
    SetTimer(workTimer, workMilliseconds, nullptr);
    const wchar_t* sentences[] = {L"Reading the picture...", L"Reading the frame...", L"Reducing the colours...",
                                  L"Writing the GIF..."};
    say(sentences[static_cast<int>(task)]);
    m_progress.ModifyStyle(PBS_MARQUEE, task == Task::Reduce ? 0 : PBS_MARQUEE);
    m_progress.SetMarquee(task != Task::Reduce, static_cast<int>(workMilliseconds));
    enableControls();
}

void CPagePictures::OnTimer(UINT_PTR id)
{
    if (id == workTimer && m_work.done())
        finish();
    else if (id == workTimer)
        showProgress();
    CPage::OnTimer(id);
}

void CPagePictures::showProgress()
{
    if (m_work.cancelled())
        m_work.cancel();
    if (m_task == Task::Reduce)
        m_progress.SetPos(static_cast<int>(m_work.percent()));
}

void CPagePictures::OnCancelWork()
{
    if (!m_work.running())
        return;
    m_work.cancel();
    say(L"Stopping...");
}

void CPagePictures::finish()
{
    KillTimer(workTimer);
    m_progress.SetMarquee(FALSE, 0);
    m_progress.ModifyStyle(PBS_MARQUEE, 0);
    m_progress.SetPos(0);
    PictureWork::Result result = m_work.finish();
    switch (m_task)
    {
    case Task::Open:
        finishOpen(std::move(result));
        break;
    case Task::Frame:
        finishFrame(std::move(result));
        break;
    case Task::Reduce:
        finishReduce(std::move(result));
        break;
    case Task::Save:
        finishSave(result);
        break;
    }
    enableControls();
}

void CPagePictures::finishOpen(PictureWork::Result result)
{
    const CString name = L"\"" + m_source.name + L"\" ";
    if (result.cancelled || !result.good)
    {
        close();
        say(name + (result.cancelled ? L"was not opened: cancelled." : L"begins like a GIF, but cannot be read."));
        return;
    }
    m_frame = std::move(result.image);
    CString frames;
    frames.Format(L"%d frame%s", static_cast<int>(m_frames.size()), m_frames.size() == 1 ? L"" : L"s");
    say(L"Opened " + name + L"(" + grouped(m_source.bytes.size()) + L" bytes): a GIF of " + frames + L".");
    showOriginal(sizeOf(*m_frame));
    showFrames();
    showImage();
}

void CPagePictures::finishFrame(PictureWork::Result result)
{
    CString text;
    if (result.good && !result.cancelled)
    {
        m_frame = std::move(result.image);
        m_frameNumber = m_wantedFrame;
        m_reduced.reset();
        text.Format(L"Frame %d, composed over those before it.", m_frameNumber + 1);
    }
    else
        text.Format(L"Frame %d %s.", m_wantedFrame + 1,
                    result.cancelled ? L"was not read: cancelled" : L"cannot be read");
    showImage();
    say(text);
}

void CPagePictures::finishReduce(PictureWork::Result result)
{
    if (result.cancelled)
    {
        say(L"Cancelled: the picture is as it was.");
        return;
    }
    if (!result.good)
    {
        say(L"There is not enough memory to reduce this picture.");
        return;
    }
    m_reduced = std::move(result.image);
    m_reduced->SetTransIndex(-1); // the index belonged to the palette before
    showImage();
    say(m_reduction + L".");
}

void CPagePictures::finishSave(const PictureWork::Result& result)
{
    const CString name = L"\"" + nameOf(m_savePath) + L"\"";
    if (result.cancelled)
        say(name + L" was not written: cancelled.");
    else if (!result.good)
        say(name + L" was not written: there is not enough memory.");
    else if (!m_saveTrouble.IsEmpty())
        say(m_saveTrouble);
    else
        say(L"Saved as " + name + L": " + grouped(m_savedBytes) + L" bytes.");
}

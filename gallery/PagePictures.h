// The page of pictures: a file as the platform shows it, and what the GIF image class makes of it.
#pragma once
#include "GifFrames.h"
#include "Page.h"
#include "PictureSource.h"
#include "PictureViews.h"
#include "PictureWork.h"
#include "oxa/images/KxStaticPictureEx.h"
#include <afxcmn.h>

class CPagePictures : public CPage
{
public:
    CPagePictures();
    void walk(const TakePicture& take) override;

    /// Opens a file as if it had been chosen. What came of it stands in the status line when the page is no longer busy.
    void openFile(const CString& path);
    bool busy() const { return m_work.running(); }

protected:
    BOOL OnInitDialog() override;

    DECLARE_MESSAGE_MAP()
    void OnOpen();
    void OnSample();
    void OnFrame(NMHDR* header, LRESULT* result);
    void OnFrameText(NMHDR* header, LRESULT* result);
    void OnReduce();
    void OnUndo();
    void OnSave();
    void OnCancelWork();
    void OnTimer(UINT_PTR id);
    void OnDestroy();

private:
    enum class Task
    {
        Open,
        Frame,
        Reduce,
        Save,
    };

    void open(PictureSource source);
    bool openGif();
    bool openOther();
    void close();

    void decodeFrame(Task task, int frame);
    void start(Task task, std::unique_ptr<CKxGifImage> image, PictureWork::Operation operation);
    void showProgress();
    void finish();
    void finishOpen(PictureWork::Result result);
    void finishFrame(PictureWork::Result result);
    void finishReduce(PictureWork::Result result);
    void finishSave(const PictureWork::Result& result);

    void say(const CString& sentence);
    void showOriginal(CSize size);
    void showImage();
    void prepareFrames();
    void showFrames();
    void showComment();
    void offerDepths();
    void enableControls();
    CRect placeOf(int id) const;

    // The walk.
    void settle();
    void pickSample(int number);
    void clickReduce(int bits, bool diffuse);
    void walkReductions(const TakePicture& take);
    void walkLongWork(const TakePicture& take);
    void walkUnreadable(const TakePicture& take);

    CKxGifImage* shown() const { return m_reduced ? m_reduced.get() : m_frame.get(); }
    std::unique_ptr<CKxGifImage> copyOf(const CKxGifImage& image) const;

    PictureSource m_source;
    std::vector<GifFrame> m_frames; ///< of a GIF
    int m_frameNumber = 0, m_wantedFrame = 0;
    std::unique_ptr<CKxGifImage> m_frame;   ///< as it was decoded
    std::unique_ptr<CKxGifImage> m_reduced; ///< null: not reduced
    CString m_reduction;                    ///< what was done
    Task m_task = Task::Open;
    HWND m_focusBefore = nullptr; ///< the control that had the focus when work began
    CString m_savePath, m_saveTrouble;
    size_t m_savedBytes = 0;

    CComboBox m_samples, m_bits;
    CKxStaticPictureEx m_original;
    CGifView m_view;
    CPaletteGrid m_palette;
    CListCtrl m_list;
    CProgressCtrl m_progress;
    PictureWork m_work; ///< the last member: its thread uses the others
};

// The page of pictures walks its states by keys, clicks and the real file dialog.
#include "PagePictures.h"
#include "resource.h"
#include "support/ModalUser.h"

namespace
{
CString temporaryFile(const wchar_t* name)
{
    CString path;
    GetTempPathW(MAX_PATH, path.GetBuffer(MAX_PATH + 1));
    path.ReleaseBuffer();
    return path + name;
}
} // namespace

void CPagePictures::walk(const TakePicture& take)
{
    take(L"1-nothing-open");
    {
        const ModalUser user({[&]
                              {
                                  take(L"2-file-dialog");
                                  typeForModal(L"landscape.bmp");
                              }});
        click(middleOf(IDC_OPEN_PICTURE));
        settle();
    }
    take(L"3-true-colour");
    walkReductions(take);
    pickSample(1);
    take(L"8-drawing");
    pickSample(2);
    take(L"9-animation");
    m_list.SetFocus();
    for (int i = 0; i < 4; ++i)
        key(VK_DOWN);
    settle();
    take(L"10-fifth-frame");
    walkLongWork(take);
    walkUnreadable(take);
}

void CPagePictures::settle()
{
    waitFor([this] { return !busy(); }, 60000);
    pumpFor(100);
}

void CPagePictures::pickSample(int number)
{
    m_samples.SetFocus();
    m_samples.SetCurSel(number - 1);
    key(VK_DOWN);
    settle();
}

void CPagePictures::clickReduce(int bits, bool diffuse)
{
    for (int i = 0; i < m_bits.GetCount(); ++i)
        if (static_cast<int>(m_bits.GetItemData(i)) == bits)
            m_bits.SetCurSel(i);
    if ((IsDlgButtonChecked(IDC_DIFFUSE) == BST_CHECKED) != diffuse)
        click(middleOf(IDC_DIFFUSE));
    click(middleOf(IDC_REDUCE));
}

void CPagePictures::walkReductions(const TakePicture& take)
{
    clickReduce(8, false);
    settle();
    take(L"4-eight-bits");
    clickReduce(4, true);
    settle();
    take(L"5-four-bits-diffused");
    const CString saved = temporaryFile(L"landscape copy.gif");
    DeleteFileW(saved);
    {
        const ModalUser user({[&] { typeForModal(saved); }});
        click(middleOf(IDC_SAVE_GIF));
        settle();
    }
    take(L"6-saved");
    DeleteFileW(saved);
    clickReduce(1, true);
    settle();
    take(L"7-one-bit-diffused");
}

void CPagePictures::walkLongWork(const TakePicture& take)
{
    pickSample(3);
    clickReduce(8, true);
    waitFor([this] { return !busy() || m_work.percent() >= 10; }, 60000);
    take(L"11-working");
    click(middleOf(IDC_CANCEL_WORK));
    settle();
    take(L"12-cancelled");
}

void CPagePictures::walkUnreadable(const TakePicture& take)
{
    const CString notes = temporaryFile(L"notes.txt");
    const char text[] = "These are notes, and no picture.";
    writeFile(notes, reinterpret_cast<const unsigned char*>(text), sizeof text - 1);
    {
        const ModalUser user({[&] { typeForModal(notes); }});
        click(middleOf(IDC_OPEN_PICTURE));
        settle();
    }
    take(L"13-not-a-picture");
    DeleteFileW(notes);
}

// The thread of a long operation.
#include "PictureWork.h"
#include <new>

void PictureWork::start(std::unique_ptr<CKxGifImage> image, Operation operation)
{
    abandon();
    m_image = std::move(image);
    m_image->SetEscape(0);
    m_done = false;
    m_good = false;
    m_cancelled = false;
    m_thread = std::thread(
        [this, work = std::move(operation)]
        {
            try
            {
                m_good = work(*m_image);
            }
            catch (const std::bad_alloc&)
            {
                m_good = false;
            }
            catch (CException* exception)
            {
                exception->Delete();
            }
            m_done = true;
        });
}

void PictureWork::cancel()
{
    m_cancelled = true;
    if (m_image)
        m_image->SetEscape(1);
}

PictureWork::Result PictureWork::finish()
{
    if (m_thread.joinable())
        m_thread.join();
    if (m_image)
        m_image->SetEscape(0);
    return {std::move(m_image), m_good, m_cancelled};
}

void PictureWork::abandon()
{
    while (m_thread.joinable() && !m_done)
    {
        cancel();
        std::this_thread::yield();
    }
    finish();
}

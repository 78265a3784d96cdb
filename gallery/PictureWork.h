// One long operation on a picture, on a thread of its own, that can be watched and cancelled.
#pragma once
#include "oxa/images/KxGifImage.h"
#include <atomic>
#include <functional>
#include <memory>
#include <thread>

/// While it runs, the picture belongs to the thread; `finish` hands it back.
class PictureWork
{
public:
    using Operation = std::function<bool(CKxGifImage&)>;

    ~PictureWork() { abandon(); }

    /// Abandons what still runs, and begins.
    void start(std::unique_ptr<CKxGifImage> image, Operation operation);
    bool running() const { return m_thread.joinable(); }
    /// True when the thread has nothing more to do.
    bool done() const { return m_done; }
    /// 0 to 100, of an operation that tells it.
    unsigned long percent() const { return m_image ? m_image->GetProgress() : 0; }
    /// Asks the operation to stop. To be repeated until `done`: an operation that exchanges its picture forgets it.
    void cancel();
    bool cancelled() const { return m_cancelled; }

    struct Result
    {
        std::unique_ptr<CKxGifImage> image;
        bool good = false;
        bool cancelled = false;
    };
    /// Waits for the end and hands over what came of it.
    Result finish();
    void abandon();

private:
    std::unique_ptr<CKxGifImage> m_image;
    std::thread m_thread;
    std::atomic<bool> m_done{false};
    bool m_good = false;
    bool m_cancelled = false;
};

#pragma once

#include "UTIL_Platform.h"

#include <QPromise>
#include <QThreadPool>

#include <functional>
#include <memory>
#include <optional>
#include <type_traits>

/// Runs long work in another thread. The user waits for it and can cancel it.
namespace util {

/// The work calls this from time to time: true when nobody waits for it any more.
using IsCancelled = std::function<bool()>;

/// Calls `work` as Result(const IsCancelled&) in another thread and returns its result. Returns nothing
/// when the user has cancelled it; the work then goes on to its end by itself, so it must own all that it
/// uses. For the GUI thread; UTIL_Platform::waitFor() says what happens there meanwhile.
template <typename Work>
[[nodiscard]] auto waitFor(QWidget* parent, const QString& text, Work work)
    -> std::optional<std::invoke_result_t<Work, const IsCancelled&>>
{
    using Result = std::invoke_result_t<Work, const IsCancelled&>;
    struct Job
    {
        QPromise<void> promise;
        std::optional<Result> result;
    };
    const auto job = std::make_shared<Job>();
    job->promise.start();
    QThreadPool::globalInstance()->start([job, work = std::move(work)] {
        job->result = work([job] { return job->promise.isCanceled(); });
        job->promise.finish();
    });
    if (!UTIL_Platform::instance()->waitFor(parent, text, job->promise.future()))
        return {};
    return std::move(job->result);
}

} // namespace util

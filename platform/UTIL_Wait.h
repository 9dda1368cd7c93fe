#pragma once

#include "UTIL_Platform.h"

#include <QPromise>
#include <QThreadPool>

#include <functional>
#include <memory>
#include <optional>
#include <type_traits>

/// Long work in another thread, for which the user waits and which can be cancelled.
namespace util {

/// Asked by the work from time to time: whether nobody waits for it any more.
using IsCancelled = std::function<bool()>;

/// Returns what `work`, called as Result(const IsCancelled&) in another thread, returns, and nothing when
/// the user has cancelled it: the work then goes on to its end by itself and must own all that it uses.
/// On the GUI thread; UTIL_Platform::waitFor() tells what happens there meanwhile.
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

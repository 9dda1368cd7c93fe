#pragma once

#include "KORVA_EditCanvas.h"
#include "UTIL_Wait.h"

/// Large pictures, for which the user waits.
namespace patience {

/// Calls `work` as Result(const util::IsCancelled&) in another thread, as util::waitFor() does, while the
/// user sees that a picture is being opened. Nothing when the user has cancelled. Whatever called this may
/// be deleted meanwhile, the editor included.
template <typename Work>
[[nodiscard]] auto opening(KORVA_EditCanvas& editor, const Work& work)
    -> std::optional<std::invoke_result_t<Work, const util::IsCancelled&>>
{
    return util::waitFor(&editor, KORVA_EditCanvas::tr("Opening picture", "WAIT_BOX"), work);
}

} // namespace patience

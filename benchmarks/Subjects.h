#pragma once

#include <memory>
#include <string>
#include <vector>

namespace bench {

/// Something under a hand: a tool in the middle of its drag, a floating piece that is being moved, an open
/// text, or a bare widget.
class Subject
{
public:
    virtual ~Subject() = default;

    /// The next motion or, for a text, key. Counted from 1.
    virtual void event(int number) = 0;
};

/// "receive" and "bare" are the yardsticks. All others are a tool, its zoom and the manners that it stands
/// in, for example "pencil 200 modern": "classic", "modern" as korva-pad has them, or "watched", classic by
/// a host that holds the picture.
[[nodiscard]] std::vector<std::string> subjectNames();

/// Null if there is none of that name.
[[nodiscard]] std::unique_ptr<Subject> makeSubject(const std::string& name);

} // namespace bench

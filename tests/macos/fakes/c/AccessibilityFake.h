#pragma once

#include "macos/fakes/c/Objects.h"

#include <ApplicationServices/ApplicationServices.h>

#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <vector>

namespace appleFake {

/// What an application answers for one attribute.
struct Answer {
    AXError error = kAXErrorSuccess;
    /// Makes a value that the asker owns; none is a success without a value.
    std::function<CFTypeRef()> value;
    double seconds = 0;
};

/// One message to another application, with the time that the asker allowed for it.
struct Question {
    int element = 0;
    std::string attribute;
    double limit = 0;
    std::optional<CFRange> range;
};

struct Accessibility {
    using Clock = std::chrono::steady_clock;

    bool trusted = true;
    /// For each question about trust, whether the system was to ask the user.
    std::vector<bool> prompts;
    /// By element and attribute. An application's own element has its process identifier's number.
    std::map<int, std::map<std::string, Answer>> elements;
    std::vector<Question> questions;
    /// Passes while applications take their time.
    Clock::time_point now{};
    double spent = 0;
};

/// The one that the process talks to. Assign to it to start over.
Accessibility& accessibility();

Answer string(std::u16string text);
Answer element(int number);
Answer rectangle(CGRect rect);
Answer range(CFRange range);
Answer failure(AXError error);
Answer after(double seconds, Answer answer);

} // namespace appleFake

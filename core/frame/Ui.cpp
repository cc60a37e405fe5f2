#include "frame/Ui.h"

#include <algorithm>
#include <cctype>

namespace tallimark {

const char* buttonsName(MsgButtons b) {
    switch (b) {
    case MsgButtons::Ok:
        return "OK";
    case MsgButtons::OkCancel:
        return "OKCancel";
    case MsgButtons::AbortRetryIgnore:
        return "AbortRetryIgnore";
    case MsgButtons::YesNoCancel:
        return "YesNoCancel";
    case MsgButtons::YesNo:
        return "YesNo";
    case MsgButtons::RetryCancel:
        return "RetryCancel";
    }
    return "OK";
}

const char* iconName(MsgIcon i) {
    switch (i) {
    case MsgIcon::None:
        return "none";
    case MsgIcon::Critical:
        return "critical";
    case MsgIcon::Question:
        return "question";
    case MsgIcon::Exclamation:
        return "exclamation";
    case MsgIcon::Information:
        return "information";
    }
    return "none";
}

namespace {
const char* const kAnswerNames[] = {"", "OK", "Cancel", "Abort", "Retry", "Ignore", "Yes", "No"};
}

const char* answerName(MsgAnswer a) {
    return kAnswerNames[static_cast<int>(a)];
}

std::optional<MsgAnswer> answerFromName(const std::string& name) {
    for (int i = 1; i <= 7; ++i) {
        std::string n = kAnswerNames[i];
        if (n.size() == name.size() && std::equal(n.begin(), n.end(), name.begin(), [](char a, char b) {
                return std::tolower(static_cast<unsigned char>(a)) ==
                       std::tolower(static_cast<unsigned char>(b));
            }))
            return static_cast<MsgAnswer>(i);
    }
    return std::nullopt;
}

} // namespace tallimark

#include "frame/VbError.h"

namespace tallimark::vberr {

[[noreturn]] void raise(long number) {
    switch (number) {
    case InvalidCall:
        throw VbError(number, "Invalid procedure call or argument");
    case SubscriptOutOfRange:
        throw VbError(number, "Subscript out of range");
    case Overflow:
        throw VbError(number, "Overflow");
    case DivisionByZero:
        throw VbError(number, "Division by zero");
    case TypeMismatch:
        throw VbError(number, "Type mismatch");
    case InvalidUseOfNull:
        throw VbError(number, "Invalid use of Null");
    default:
        throw VbError(number, "Application-defined or object-defined error");
    }
}

} // namespace tallimark::vberr

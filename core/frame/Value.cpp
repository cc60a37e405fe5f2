#include "frame/Value.h"

#include "frame/VbError.h"
#include "frame/VbNumber.h"

namespace tallimark {

std::string Value::text() const {
    struct Visitor {
        std::string operator()(std::monostate) const { vberr::raise(vberr::InvalidUseOfNull); }
        std::string operator()(int64_t v) const { return NumText(v); }
        std::string operator()(double v) const { return NumText(v); }
        std::string operator()(const std::string& v) const { return v; }
        std::string operator()(const VbDate& v) const { return DateText(v); }
    };
    return std::visit(Visitor{}, v_);
}

double Value::number() const {
    struct Visitor {
        double operator()(std::monostate) const { vberr::raise(vberr::InvalidUseOfNull); }
        double operator()(int64_t v) const { return static_cast<double>(v); }
        double operator()(double v) const { return v; }
        double operator()(const std::string& v) const { return CDbl(v); }
        double operator()(const VbDate& v) const { return v.serial(); }
    };
    return std::visit(Visitor{}, v_);
}

VbDate Value::date() const {
    struct Visitor {
        VbDate operator()(std::monostate) const { vberr::raise(vberr::InvalidUseOfNull); }
        VbDate operator()(int64_t v) const { return VbDate(static_cast<double>(v)); }
        VbDate operator()(double v) const { return VbDate(v); }
        VbDate operator()(const std::string& v) const { return CDate(v); }
        VbDate operator()(const VbDate& v) const { return v; }
    };
    return std::visit(Visitor{}, v_);
}

} // namespace tallimark

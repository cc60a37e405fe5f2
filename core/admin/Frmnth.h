#pragma once
// The view of the month codes: a grid headed Month, Stock and Future. It loads no rows and
// saves nothing; the codes come with the store.
#include "frame/Form.h"

namespace tallimark {

class Frmnth : public Form {
public:
    static constexpr const char* kName = "Frmnth";
    explicit Frmnth(App& app);
};

} // namespace tallimark

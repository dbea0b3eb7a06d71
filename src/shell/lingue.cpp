#include "shell/lingue.h"

namespace trameli {

std::string Lingue::TestoLingua(std::string_view /*id*/) const {
    return {};
}

}  // namespace trameli

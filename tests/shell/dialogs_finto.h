// Message boxes that nobody has to close.
#pragma once

#include <string>
#include <vector>

#include "platform/dialogs.h"

namespace trameli {

/// Records the messages.
class DialogsFinto : public Dialogs {
public:
    struct Messaggio {
        std::string Testo;
        std::string Titolo;

        bool operator==(const Messaggio&) const = default;
    };

    std::vector<Messaggio> Messaggi;

    void Critical(const std::string& text, const std::string& title) override {
        Messaggi.push_back({text, title});
    }
};

}  // namespace trameli

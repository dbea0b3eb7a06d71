#include "shell/file_utente.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <locale>
#include <sstream>
#include <system_error>
#include <variant>

#include "base/combinazioni_spessori.h"
#include "base/griglie.h"
#include "base/rounding.h"

namespace trameli {

namespace {

using Intero = std::int16_t Impostazioni::*;
using Logico = bool Impostazioni::*;
using Colore = double Impostazioni::*;

/// A line of the file. The kind of the field says how its value is written and read.
struct Riga {
    std::variant<Intero, Logico, Colore> Campo;
    double Minimo = 0;
    double Massimo = 0;
};

constexpr double ColoreMassimo = 16777215;

/// The format: the order of the lines is all that tells the values apart.
constexpr std::array<Riga, 16> Formato{{
    {&Impostazioni::Livello, 0, NumeroLivelli - 1},
    {&Impostazioni::UsaMaiuscolo},
    {&Impostazioni::CambiaColoreRitorno},
    {&Impostazioni::LineeNeiPrimiLivelli},
    {&Impostazioni::ColorePareti, 0, ColoreMassimo},
    {&Impostazioni::ColoreAvanti, 0, ColoreMassimo},
    {&Impostazioni::ColoreSfondo, 0, ColoreMassimo},
    {&Impostazioni::ColoreSimbolo, 0, ColoreMassimo},
    {&Impostazioni::ColoreRitorno, 0, ColoreMassimo},
    {&Impostazioni::ColoreScansione, 0, ColoreMassimo},
    {&Impostazioni::SpessoreLinee, 0, NumeroSpessori - 1},
    {&Impostazioni::SuoniAttivi},
    {&Impostazioni::SuonoMovimento},
    {&Impostazioni::PuntatoreSistema},
    {&Impostazioni::ModoInput, Tastiera, ScansioneAutomatica},
    {&Impostazioni::VelocitaScansione, 2, 60},
}};

constexpr bool Blank(char c) {
    return c == ' ' || c == '\t';
}
constexpr bool FineRiga(char c) {
    return c == '\r' || c == '\n';
}

/// Takes one value after the other from a text. Commas and line ends both part values, and a line
/// ends with CR LF, CR or LF, so that a file that went through an editor still reads.
class Lettore {
public:
    explicit Lettore(std::string_view testo) : resto_(testo) {}

    /// The next characters up to a comma or a line end. Blanks belong to the word.
    std::string_view Parola() {
        const std::string_view parola = Prendi([](char c) { return c != ',' && !FineRiga(c); });
        SaltaSeparatore();
        return parola;
    }

    /// The next characters that a number can consist of, without the blanks round them. The blanks
    /// behind belong to the number, or else the comma after "3 ," would count as another value.
    std::string_view Numero() {
        Prendi(Blank);
        const std::string_view numero =
            Prendi([](char c) { return c != ',' && !FineRiga(c) && !Blank(c); });
        Prendi(Blank);
        SaltaSeparatore();
        return numero;
    }

    bool RestanoBlank() const {
        return std::all_of(resto_.begin(), resto_.end(),
                           [](char c) { return Blank(c) || FineRiga(c); });
    }

private:
    template <typename Condizione>
    std::string_view Prendi(Condizione condizione) {
        std::size_t lunghezza = 0;
        while (lunghezza < resto_.size() && condizione(resto_[lunghezza])) {
            ++lunghezza;
        }
        const std::string_view preso = resto_.substr(0, lunghezza);
        resto_.remove_prefix(lunghezza);
        return preso;
    }

    void SaltaSeparatore() {
        if (resto_.starts_with("\r\n")) {
            resto_.remove_prefix(2);
        } else if (!resto_.empty() && (resto_.front() == ',' || FineRiga(resto_.front()))) {
            resto_.remove_prefix(1);
        }
    }

    std::string_view resto_;
};

/// Of numbers that no double can hold, those that come to nothing are nought, and those that are
/// too large are none. Among the library's conversions that of streams tells them apart.
std::optional<double> Minuscolo(std::string_view testo) {
    std::istringstream flusso{std::string(testo)};
    flusso.imbue(std::locale::classic());
    double valore = 0;
    return flusso >> valore ? std::optional(valore) : std::nullopt;
}

/// A number as free-format input takes it: a sign, decimals and an exponent are allowed, an empty
/// text, a word or an infinite value are not.
std::optional<double> Converti(std::string_view testo) {
    if (testo.size() > 1 && testo[0] == '+' && testo[1] != '-') {
        testo.remove_prefix(1);
    }
    double valore = 0;
    const char* const fine = testo.data() + testo.size();
    // Unlike the other conversions of the library this one knows no locale.
    const auto [arrivo, errore] = std::from_chars(testo.data(), fine, valore);
    if (errore == std::errc::result_out_of_range && arrivo == fine) {
        return Minuscolo(testo);
    }
    if (errore != std::errc() || arrivo != fine || !std::isfinite(valore)) {
        return std::nullopt;
    }
    return valore;
}

bool NeiLimiti(const Riga& riga, double valore) {
    return valore >= riga.Minimo && valore <= riga.Massimo;
}

/// Reads one value into its field; false on a failure that spoils the whole record.
struct Lettura {
    Lettore& Da;
    const Riga& Formato;
    Impostazioni& In;

    bool operator()(Logico campo) const {
        In.*campo = Da.Parola().starts_with('T');
        return true;
    }

    bool operator()(Intero campo) const {
        const std::optional<double> valore = Converti(Da.Numero());
        if (!valore) {
            return false;
        }
        const std::int32_t intero = Nearest(*valore);
        if (intero != Saturated(intero)) {
            return false;  // beyond 16 bits a number does not convert at all
        }
        if (NeiLimiti(Formato, intero)) {
            In.*campo = Saturated(intero);
        }
        return true;
    }

    bool operator()(Colore campo) const {
        const std::optional<double> valore = Converti(Da.Numero());
        if (!valore) {
            return false;
        }
        // Every colour is a whole number, so one with a fraction lies outside the range.
        if (NeiLimiti(Formato, *valore) && *valore == std::floor(*valore)) {
            In.*campo = *valore;
        }
        return true;
    }
};

/// Writes one value without its line end.
struct Scrittura {
    const Impostazioni& Da;
    std::string& In;

    void operator()(Logico campo) const { In += Da.*campo ? "True" : "False"; }
    void operator()(Intero campo) const { Numero(Da.*campo); }
    // By way of a whole number: a double would be written with an exponent from some size on.
    void operator()(Colore campo) const { Numero(Nearest(Da.*campo)); }

    /// The minus sign stands where positive numbers have a blank.
    void Numero(std::int32_t valore) const {
        if (valore >= 0) {
            In += ' ';
        }
        In += std::to_string(valore);
        In += ' ';
    }
};

}  // namespace

std::string Testo(const Impostazioni& impostazioni) {
    std::string testo;
    for (const Riga& riga : Formato) {
        std::visit(Scrittura{impostazioni, testo}, riga.Campo);
        testo += "\r\n";
    }
    return testo;
}

std::optional<Impostazioni> Leggi(std::string_view testo) {
    Impostazioni impostazioni;
    Lettore lettore(testo);
    for (const Riga& riga : Formato) {
        // A text that ends early is found out by its last number, which has no digits.
        if (!std::visit(Lettura{lettore, riga, impostazioni}, riga.Campo)) {
            return std::nullopt;
        }
    }
    return impostazioni;
}

bool Riconosci(std::string_view testo) {
    Impostazioni impostazioni;
    Lettore lettore(testo);
    for (const Riga& riga : Formato) {
        if (std::holds_alternative<Logico>(riga.Campo)) {
            const std::string_view parola = lettore.Parola();
            if (parola != "True" && parola != "False") {
                return false;
            }
        } else if (!std::visit(Lettura{lettore, riga, impostazioni}, riga.Campo)) {
            return false;
        }
    }
    return lettore.RestanoBlank();
}

}  // namespace trameli

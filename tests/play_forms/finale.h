// A program that has nothing but the congratulations and what follows them.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "platform/forms.h"
#include "play/form_finale.h"
#include "play/sfumatura.h"
#include "shell/file_system_finto.h"
#include "support/hand_clock.h"
#include "support/noted_sounds.h"
#include "support/stage.h"

namespace trameli {

/// Always draws the same number.
class CasualeFisso final : public Casuale {
public:
    float Numero = 0;

    float Estrai() override { return Numero; }
};

class FinaleTest : public testing::Test {
protected:
    FinaleTest() {
        Stato.Livello = 3;
        Stato.NomeGiocatore = "Giulia";
        Stato.VelocitaScansione = 4;
        Stato.SuoniAttivi = true;
    }

    /// Starts the program on a screen of that size, with stand-ins for the forms of the levels.
    void Avvia(int larghezza = 1024, int altezza = 768) {
        programma_.reset();
        schermo_ = std::make_unique<FixedScreen>(larghezza, altezza);
        programma_ = std::make_unique<Forms>(Tempo, *schermo_);
        programma_->Register("FormFinale", [this](Forms& forms) {
            return std::make_unique<FormFinale>(forms, Servizi_, Draws);
        });
        for (const char* nome : {"frmTrm0", "frmTrm1", "frmTrm3", "Altro"}) {
            programma_->Register(nome, [nome](Forms& forms) {
                return std::make_unique<Form>(forms, nome, Form::DesignSize{3000, 2000});
            });
        }
    }

    /// Shows the window and lets its first second pass.
    FormFinale& Mostra() {
        programma_->Show("FormFinale");
        Pump();
        return Finale();
    }
    /// The same in a new run of the program.
    FormFinale& AvviaEMostra() {
        Avvia();
        return Mostra();
    }

    Forms& Programma() { return *programma_; }
    bool Aperto(const char* nome) const { return programma_->Find(nome) != nullptr; }
    FormFinale& Finale() { return dynamic_cast<FormFinale&>(*programma_->Find("FormFinale")); }

    /// Another window comes before this one, and goes again.
    void VaiEVieni(const std::function<void(Form& altro)>& intanto = {}) {
        programma_->Show("Altro");
        Pump();
        if (intanto) {
            intanto(*programma_->Find("Altro"));
        }
        programma_->Show("FormFinale");
        Pump();
    }

    /// Which button has the keyboard and shows it: 1, 2, or 0 for neither.
    int Evidenziato() {
        FormFinale& form = Finale();
        const bool primo = WidgetOf(form.Command1).hasFocus();
        const bool secondo = WidgetOf(form.Command2).hasFocus();
        EXPECT_EQ(primo, form.Command1.BackColor() != ButtonFace);
        EXPECT_EQ(secondo, form.Command2.BackColor() != ButtonFace);
        return primo ? 1 : secondo ? 2 : 0;
    }

    HandClock Tempo;
    trameli::Stato Stato;
    NotedSounds Uditi;
    CasualeFisso Draws;

private:
    FileSystemFinto file_;
    NotedDialogs dialoghi_;
    Lingue lingue_{Stato, file_, dialoghi_, ""};
    ModuloPerIni ini_{Stato, file_, dialoghi_, lingue_};
    Suoni suoni_{Stato, Uditi};
    NotedDocuments documenti_;
    ModuloNavigate navigate_{Stato, file_, documenti_};

protected:
    Servizi Servizi_{Stato, lingue_, ini_, file_, suoni_, navigate_, dialoghi_};

private:
    std::unique_ptr<FixedScreen> schermo_;
    std::unique_ptr<Forms> programma_;
};

}  // namespace trameli

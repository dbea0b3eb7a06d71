#include "program.h"

#include <bit>
#include <cstdint>
#include <utility>

#include "play/form_archivio.h"
#include "play/form_finale.h"
#include "play/frm_trm0.h"
#include "play/frm_trm1.h"
#include "play/frm_trm3.h"
#include "printing/frm_stampa.h"
#include "shell/form_avvio.h"
#include "shell/form_configura.h"
#include "shell/form_info.h"
#include "shell/form_menu.h"

namespace trameli {

Program::Program(const Services& services, std::unique_ptr<Casuale> casuale)
    : services_(services),
      casuale_(std::move(casuale)),
      lingue_(stato_, services_.FileSystem, services_.Dialogs, services_.Locale),
      moduloPerIni_(stato_, services_.FileSystem, services_.Dialogs, lingue_),
      suoni_(stato_, services_.Sounds),
      moduloNavigate_(stato_, services_.FileSystem, services_.Documents),
      stampa_(forms_),
      servizi_{stato_,
               lingue_,
               moduloPerIni_,
               services_.FileSystem,
               suoni_,
               moduloNavigate_,
               services_.Dialogs,
               services_.Printers,
               stampa_,
               services_.DecimalSeparator},
      forms_(services_.Clock, services_.Screen) {
    RegistraForm();
    forms_.SwitchesInUse([this] { return stato_.ModoInput != Tastiera; });
}

FirstSight Program::PrimaVista() {
    return FormAvvio::PrimaVista();
}

bool Program::Main() {
    if (services_.Instances.AnotherRuns()) {
        services_.Dialogs.Message(lingue_.TestoLingua("0001"), "Error", Icon::Critical,
                                  Buttons::Ok);
        return false;
    }
    if (!casuale_) {
        // All bits of the time: those behind the point differ from one start to the next.
        casuale_ =
            std::make_unique<CasualeConSeme>(std::bit_cast<std::uint64_t>(forms_.Clock().Now()));
    }
    moduloPerIni_.VerificaCartelle();
    moduloPerIni_.RiordinaCartelle();
    stato_.FileUtente = ModuloPerIni::PrimoFileUtente;
    stato_.NomeUtente = ModuloPerIni::PrimoUtente;
    moduloPerIni_.LeggiUtente();
    forms_.Show("FormAvvio");
    return true;
}

void Program::Run() {
    forms_.Run();
}

void Program::Salva() {
    if (!stato_.FileUtente.empty()) {
        moduloPerIni_.ScriviInSilenzio();
    }
}

void Program::RegistraForm() {
    forms_.Register("FormAvvio", [this](trameli::Forms& forms) {
        return std::make_unique<FormAvvio>(forms, servizi_);
    });
    forms_.Register("FormMenu", [this](trameli::Forms& forms) {
        return std::make_unique<FormMenu>(forms, servizi_);
    });
    forms_.Register("FormConfigura", [this](trameli::Forms& forms) {
        return std::make_unique<FormConfigura>(forms, servizi_);
    });
    forms_.Register("FormInfo", [this](trameli::Forms& forms) {
        return std::make_unique<FormInfo>(forms, servizi_);
    });
    forms_.Register("FormArchivio",
                    [](trameli::Forms& forms) { return std::make_unique<FormArchivio>(forms); });
    forms_.Register("FormFinale", [this](trameli::Forms& forms) {
        return std::make_unique<FormFinale>(forms, servizi_, *casuale_);
    });
    forms_.Register("frmStampa", [this](trameli::Forms& forms) {
        return std::make_unique<frmStampa>(forms, servizi_, statoStampa_);
    });
    forms_.Register("frmTrm0", [this](trameli::Forms& forms) {
        return std::make_unique<frmTrm0>(forms, servizi_, *casuale_);
    });
    forms_.Register("frmTrm1", [this](trameli::Forms& forms) {
        return std::make_unique<frmTrm1>(forms, servizi_, *casuale_);
    });
    forms_.Register("frmTrm3", [this](trameli::Forms& forms) {
        return std::make_unique<frmTrm3>(forms, servizi_, *casuale_);
    });
}

}  // namespace trameli

#include <gtest/gtest.h>
#include <QTimer>
#include "game/partita.h"
#include "printing/frm_stampa.h"
#include "lingue/testi_forniti.h"
namespace trameli {
TEST(Shot_, It) {
    const char* out = getenv("SHOT_OUT");
    const std::string lingua = getenv("SHOT_LANG") ? getenv("SHOT_LANG") : "italiano";
    const int w = atoi(getenv("SHOT_W")), h = atoi(getenv("SHOT_H"));
    Disco disco; ScegliLingua(disco, lingua);
    Partita partita(disco, {w, h});
    Form& gioco = partita.ApriLivello(atoi(getenv("SHOT_LEVEL")));
    Tavolo tavolo(gioco, atoi(getenv("SHOT_LEVEL")));
    auto sol = tavolo.Soluzione(); sol.resize(sol.size()/2); 
    if (gioco.Name() != "frmTrm1") tavolo.Cammina(sol);
    QTimer t; int k = 0;
    const std::string o(out);
    t.callOnTimeout([&] {
        auto* f = dynamic_cast<frmStampa*>(partita.Gioco.Forms().Find("frmStampa"));
        if (!f || !WindowOf(*f).isVisible()) return;
        t.stop(); Pump(); QTest::qWait(200);
        Shot(*f).save(QString::fromStdString(o + "_a.png")); ++k;
        ClickOn(f->picPreview); Pump(); QTest::qWait(200);
        Shot(*f).save(QString::fromStdString(o + "_zoom.png"));
        ClickOn(f->picPreviewZoom); Pump();
        partita.Stampanti.During = [&] { Shot(*f).save(QString::fromStdString(o + "_job.png")); };
        f->cboPrinterNames.ListIndex(1); 
        Shot(*f).save(QString::fromStdString(o + "_grey.png"));
        ClickOn(f->cmdStampa);
        if (partita.Gioco.Forms().Find("frmStampa")) partita.Gioco.Forms().Unload(*f);
    });
    t.start(0);
    Tap(gioco, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(k, 1);
}
}

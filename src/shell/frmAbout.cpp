#include "shell/frmAbout.h"

#include "common/Mesaje.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

QString UnealtaInfoSistem()
{
    // Windows' own tool first, then the usual ones of the Linux desktops.
    static const char* const Candidati[] = {"msinfo32",
                                            "hardinfo",
                                            "gnome-system-monitor",
                                            "plasma-systemmonitor",
                                            "ksysguard",
                                            "mate-system-monitor",
                                            "xfce4-taskmanager"};
    for (const char* c : Candidati) {
        const QString cale = QStandardPaths::findExecutable(QLatin1String(c));
        if (!cale.isEmpty())
            return cale;
    }
    return QString();
}

frmAbout::frmAbout(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(QStringLiteral("Despre Alocatii"));

    auto* titlu = new QLabel(QStringLiteral("Alocatii"), this);
    titlu->setObjectName(QStringLiteral("lblTitle"));
    QFont f = titlu->font();
    f.setPointSize(f.pointSize() + 6);
    f.setBold(true);
    titlu->setFont(f);
    auto* versiune = new QLabel(QStringLiteral("Versiunea ") + QStringLiteral(ALOCATII_VERSIUNE), this);
    versiune->setObjectName(QStringLiteral("lblVersion"));
    auto* descriere = new QLabel(QStringLiteral("Evidenta cererilor de alocatie pentru sustinerea familiei: "
                                                "cereri, dispozitii, anchete sociale, adeverinte, borderouri "
                                                "si rapoarte lunare."),
                                 this);
    descriere->setObjectName(QStringLiteral("lblDescription"));
    descriere->setWordWrap(true);

    auto* ok = new QPushButton(QStringLiteral("&OK"), this);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    auto* info = new QPushButton(QStringLiteral("&Informatii sistem..."), this);
    info->setObjectName(QStringLiteral("cmdSysInfo"));
    info->setAutoDefault(false);

    auto* butoane = new QHBoxLayout;
    butoane->addStretch();
    butoane->addWidget(ok);
    butoane->addWidget(info);
    auto* l = new QVBoxLayout(this);
    l->addWidget(titlu);
    l->addWidget(versiune);
    l->addWidget(descriere);
    l->addLayout(butoane);
    setMinimumWidth(360);

    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(info, &QPushButton::clicked, this, &frmAbout::cmdSysInfo_Click);
}

void frmAbout::cmdSysInfo_Click()
{
    const QString unealta = UnealtaInfoSistem();
    if (unealta.isEmpty() || !QProcess::startDetached(unealta, {}))
        Mesaj(QStringLiteral("System Information Is Unavailable At This Time"), Mesaje::Icon::Exclamare, windowTitle());
}

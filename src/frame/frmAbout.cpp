#include "frame/frmAbout.h"

#include "document/programiconwidgets.h"
#include "platform/platform.h"
#include "text/captions.h"
#include "text/language.h"
#include "text/productinfo.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace {

QLabel* makeLabel(QWidget* parent, const char* name, const QString& text)
{
    auto* label = new QLabel(text, parent);
    label->setObjectName(QString::fromLatin1(name));
    return label;
}

} // namespace

frmAbout::frmAbout(QWidget* parent) : QDialog(parent)
{
    setObjectName("frmAbout");
    picIcon = makeLabel(this, "picIcon", QString());
    SetWindowPicture(this, Picture::Program);
    picIcon->setPixmap(ProgramPixmap(Picture::Program, 48));
    picIcon->installEventFilter(this);
    lblTitle = makeLabel(this, "lblTitle", ProgramTitle + QStringLiteral(" for ") + ProductModel);
    lblVersion = makeLabel(this, "lblVersion", QStringLiteral("Version ") + ProgramVersion);
    lblDescription = makeLabel(this, "lblDescription",
                               QStringLiteral("Remote control, waveform and measurement companion of the ") +
                                   ProductModel + QStringLiteral(" oscilloscopes.\n") + CompanyName);
    cmdOK = new QPushButton(this);
    cmdOK->setObjectName("cmdOK");
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);

    auto* layout = new QGridLayout(this);
    layout->addWidget(picIcon, 0, 0, 3, 1, Qt::AlignTop);
    layout->addWidget(lblTitle, 0, 1);
    layout->addWidget(lblVersion, 1, 1);
    layout->addWidget(lblDescription, 2, 1);
    layout->addWidget(cmdOK, 3, 1, Qt::AlignRight);
    SetCaptions(Language);
}

void frmAbout::SetCaptions(int language)
{
    setWindowTitle(Caption(CaptionList::About, 0, language) + ProgramTitle);
    cmdOK->setText(Caption(CaptionList::About, 1, language));
}

void frmAbout::picIcon_Click()
{
    MsgBox(ProgramVersion, vbOKOnly, QStringLiteral("Version"));
}

bool frmAbout::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == picIcon && event->type() == QEvent::MouseButtonRelease) picIcon_Click();
    return QDialog::eventFilter(watched, event);
}

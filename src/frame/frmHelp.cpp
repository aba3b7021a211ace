#include "frame/frmHelp.h"

#include "document/programiconwidgets.h"
#include "platform/platform.h"
#include "text/captions.h"
#include "text/language.h"

#include <QFile>
#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>
#include <QStyle>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace {

// Every entry page lists the manual's chapters under this anchor.
const QString ContentsAnchor = QStringLiteral("contents");

QPointer<frmHelp>& openViewer()
{
    static QPointer<frmHelp> viewer;
    return viewer;
}

// The reason a file can't be read, or an empty text when it can.
QString readFailure(const QString& path)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) return QString();
    return file.errorString() + QStringLiteral(": ") + path;
}

QPushButton* makeButton(QWidget* parent, const char* name, QStyle::StandardPixmap icon)
{
    auto* button = new QPushButton(parent->style()->standardIcon(icon), QString(), parent);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(false);
    return button;
}

} // namespace

frmHelp::frmHelp(QWidget* parent) : QWidget(parent, Qt::Window)
{
    setObjectName("frmHelp");
    setAttribute(Qt::WA_DeleteOnClose);
    SetWindowPicture(this, Picture::Program);
    cmdBack = makeButton(this, "cmdBack", QStyle::SP_ArrowBack);
    cmdForward = makeButton(this, "cmdForward", QStyle::SP_ArrowForward);
    cmdHome = makeButton(this, "cmdHome", QStyle::SP_DirHomeIcon);
    cmdContents = makeButton(this, "cmdContents", QStyle::SP_FileDialogContentsView);
    txtHelp = new QTextBrowser(this);
    txtHelp->setObjectName("txtHelp");
    // Links to the web leave the program; pages of the manual stay in the viewer.
    txtHelp->setOpenExternalLinks(true);

    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {cmdBack, cmdForward, cmdHome, cmdContents})
        buttons->addWidget(button);
    buttons->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(buttons);
    layout->addWidget(txtHelp);

    cmdBack->setEnabled(false);
    cmdForward->setEnabled(false);
    connect(cmdBack, &QPushButton::clicked, txtHelp, &QTextBrowser::backward);
    connect(cmdForward, &QPushButton::clicked, txtHelp, &QTextBrowser::forward);
    connect(cmdHome, &QPushButton::clicked, this, &frmHelp::cmdHome_Click);
    connect(cmdContents, &QPushButton::clicked, this, &frmHelp::cmdContents_Click);
    connect(txtHelp, &QTextBrowser::backwardAvailable, cmdBack, &QPushButton::setEnabled);
    connect(txtHelp, &QTextBrowser::forwardAvailable, cmdForward, &QPushButton::setEnabled);
    connect(txtHelp, &QTextBrowser::sourceChanged, this, &frmHelp::followTitle);
    resize(820, 640);
    SetCaptions(Language);
}

void frmHelp::ShowManual(const QString& path)
{
    if (path == manual_) return;
    manual_ = path;
    txtHelp->setSource(QUrl::fromLocalFile(path));
    txtHelp->clearHistory();
}

void frmHelp::cmdHome_Click()
{
    txtHelp->setSource(QUrl::fromLocalFile(manual_));
}

void frmHelp::cmdContents_Click()
{
    QUrl url = QUrl::fromLocalFile(manual_);
    url.setFragment(ContentsAnchor);
    txtHelp->setSource(url);
}

void frmHelp::SetCaptions(int language)
{
    language_ = language;
    QPushButton* const buttons[] = {cmdBack, cmdForward, cmdHome, cmdContents};
    for (int i = 0; i < 4; ++i) {
        const QString caption = Caption(CaptionList::HelpViewer, i + 1, language);
        buttons[i]->setText(caption);
        buttons[i]->setToolTip(caption);
    }
    followTitle();
}

// The window is titled by the page it shows.
void frmHelp::followTitle()
{
    const QString title = txtHelp->documentTitle();
    setWindowTitle(title.isEmpty() ? Caption(CaptionList::HelpViewer, 0, language_) : title);
}

frmHelp* HelpWindow()
{
    return openViewer().data();
}

bool OpenHelpFile(int language, QWidget* parent)
{
    const QString path = HelpFilePath(language);
    if (const QString failure = readFailure(path); !failure.isEmpty()) {
        MsgBox(failure, vbExclamation);
        return false;
    }
    QPointer<frmHelp>& viewer = openViewer();
    if (!viewer) viewer = new frmHelp(parent);
    viewer->SetCaptions(language);
    viewer->ShowManual(path);
    viewer->show();
    viewer->raise();
    viewer->activateWindow();
    return true;
}

#include "frame/frmSplash.h"

#include "text/productinfo.h"

#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

namespace {

QLabel* makeLabel(QWidget* parent, const char* name, const QString& text, int pointSize)
{
    auto* label = new QLabel(text, parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setAlignment(Qt::AlignCenter);
    QFont font = label->font();
    font.setPointSize(pointSize);
    label->setFont(font);
    return label;
}

} // namespace

frmSplash::frmSplash(QWidget* parent) : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint)
{
    setObjectName("frmSplash");
    setWindowTitle(ProgramTitle);
    lblProductName = makeLabel(this, "lblProductName", ProgramTitle + QStringLiteral(" ") + ProductModel, 20);
    lblVersion = makeLabel(this, "lblVersion", QStringLiteral("Version ") + ProgramVersion, 10);
    lblCompany = makeLabel(this, "lblCompany", CompanyName, 10);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(40, 30, 40, 30);
    layout->addWidget(lblProductName);
    layout->addWidget(lblVersion);
    layout->addWidget(lblCompany);
    setFixedSize(420, 200);
}

void frmSplash::ShowNow()
{
    if (const QScreen* screen = this->screen()) {
        QRect area = frameGeometry();
        area.moveCenter(screen->availableGeometry().center());
        move(area.topLeft());
    }
    show();
    repaint();
}

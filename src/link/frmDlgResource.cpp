#include "link/frmDlgResource.h"

#include "text/captionwidgets.h"
#include "text/language.h"
#include "link/linkstate.h"
#include "link/resourcechooser.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

frmDlgResource::frmDlgResource(QWidget* parent)
    : QDialog(parent), lblResource(new QLabel(this)), cmbResource(new QComboBox(this)),
      cmdOK(new QPushButton(this)), cmdCancel(new QPushButton(this))
{
    setObjectName(QStringLiteral("DlgResource"));
    lblResource->setObjectName(QStringLiteral("lblResource"));
    cmbResource->setObjectName(QStringLiteral("cmbResource"));
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    // Editable, so a resource the find doesn't list (a raw socket) can be typed in.
    cmbResource->setEditable(true);
    cmbResource->setMinimumContentsLength(40);
    cmdOK->setDefault(true);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdCancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblResource);
    layout->addWidget(cmbResource);
    layout->addLayout(buttons);

    connect(cmdOK, &QPushButton::clicked, this, &frmDlgResource::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmDlgResource::cmdCancel_Click);
    connect(cmbResource->view(), &QAbstractItemView::doubleClicked, this, &frmDlgResource::cmdOK_Click);
    LoadDlgResource(Language);
}

void frmDlgResource::LoadDlgResource(int language)
{
    ApplyCaptions(this, CaptionList::ResourceDialog,
                  {{"", 0, CaptionRole::WindowTitle}, {"lblResource", 1}, {"cmdOK", 2}, {"cmdCancel", 3}},
                  language);
}

void frmDlgResource::SetResourceRows(const QStringList& rows)
{
    cmbResource->clear();
    cmbResource->addItems(rows);
    if (!rows.isEmpty()) cmbResource->setCurrentIndex(PreselectedResourceRow(rows));
}

void frmDlgResource::cmdOK_Click()
{
    ResourceName = cmbResource->currentText();
    cmbResource->setProperty("Tag", QStringLiteral("1"));
    okPressed_ = true;
    accept();
}

void frmDlgResource::cmdCancel_Click()
{
    okPressed_ = false;
    reject();
}

void InstallDlgResourceChooser()
{
    InstallResourceChooser([](const QStringList& rows) {
        frmDlgResource dialog(QApplication::activeWindow());
        dialog.SetResourceRows(rows);
        dialog.exec();
        return dialog.GetOkCancel();
    });
}

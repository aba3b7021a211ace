#include "sheet/frmDocChoice.h"

#include "document/programiconwidgets.h"
#include "document/sheetstate.h"
#include "text/captionwidgets.h"
#include "text/language.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <iterator>

namespace {

// The pictures of the choices, in choice order: data sheet, controller, wave,
// measure, wave data, record, memory wave.
constexpr Picture ChoicePictures[] = {Picture::Sheet,     Picture::Controller, Picture::Wave,
                                      Picture::Measure,   Picture::Data,       Picture::Record,
                                      Picture::MemoryWave};
constexpr int ChoicePictureSide = 32;

QPushButton* makeButton(QWidget* parent, const char* name)
{
    auto* button = new QPushButton(parent);
    button->setObjectName(QString::fromLatin1(name));
    return button;
}

} // namespace

frmDocChoice::frmDocChoice(const QString& name, CaptionList captions, int options, QWidget* parent)
    : QDialog(parent), captionList(captions)
{
    setObjectName(name);
    fraFileType = new QGroupBox(this);
    fraFileType->setObjectName("fraFileType");
    auto* column = new QVBoxLayout(fraFileType);
    for (int i = 0; i < options; ++i) {
        auto* row = new QHBoxLayout;
        auto* picture = new QLabel(fraFileType);
        picture->setObjectName(QStringLiteral("Image%1").arg(i + 1));
        if (i < int(std::size(ChoicePictures)))
            picture->setPixmap(ProgramPixmap(ChoicePictures[i], ChoicePictureSide));
        auto* option = new QRadioButton(fraFileType);
        option->setObjectName(QStringLiteral("NewOption_%1").arg(i));
        row->addWidget(picture);
        row->addWidget(option, 1);
        column->addLayout(row);
        NewOption.push_back(option);
    }
    NewOption.front()->setChecked(true);
    cmdOK = makeButton(this, "cmdOK");
    cmdOK->setDefault(true);
    cmdCancel = makeButton(this, "cmdCancel");
    connect(cmdOK, &QPushButton::clicked, this, &frmDocChoice::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmDocChoice::cmdCancel_Click);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdCancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(fraFileType);
    layout->addLayout(buttons);
    SetCaptions(Language);
}

// The list holds the title, the frame, one text per option, then OK and Cancel.
void frmDocChoice::SetCaptions(int language)
{
    const auto text = [&](int slot) { return Caption(captionList, slot, language); };
    setWindowTitle(text(0));
    fraFileType->setTitle(text(1));
    const int options = static_cast<int>(NewOption.size());
    for (int i = 0; i < options; ++i)
        NewOption[std::size_t(i)]->setText(text(2 + i));
    cmdOK->setText(text(2 + options));
    cmdCancel->setText(text(3 + options));
}

// The first option that is on decides; with none on the last choice stays.
void frmDocChoice::cmdOK_Click()
{
    for (std::size_t i = 0; i < NewOption.size(); ++i)
        if (NewOption[i]->isChecked()) {
            DocChoice = static_cast<int>(i) + 1;
            break;
        }
    DocChosen = true;
    accept();
}

void frmDocChoice::cmdCancel_Click()
{
    reject();
}

#include "foundation/frm_message_box.h"

#include "foundation/session_state.h"
#include "foundation/texts.h"
#include "platform/controls/entry_filters.h"
#include "platform/controls/form_kit.h"
#include "platform/controls/text_columns.h"

#include <QApplication>
#include <QScreen>
#include <QScrollBar>
#include <QTextDocument>
#include <QTimer>

#include <algorithm>
#include <cmath>

namespace
{
constexpr int kTwipsPerPixel = 15;
constexpr int kButtonGap = 150 / kTwipsPerPixel;
constexpr int kButtonWidth = 96;
constexpr int kTwipsPerLetter = 125;       ///< of one or two captions given by the caller
constexpr int kTwipsPerLetterNarrow = 120; ///< of three or four
constexpr int kFaceSize = 88;
constexpr int kLettersPerLine = 64;
constexpr int kMostLines = 18;
constexpr int kHighest = 4000;
constexpr int kRoomBesideText = 200; ///< for face, bar and margins
constexpr int kRoomAroundText = 180; ///< for title, input box, check box and buttons
constexpr int kRoomBelowText = 2;    ///< without it the box takes its last line for hidden, and scrolls
constexpr int kFaceDelay = 10;       ///< milliseconds: the text appears at once, the face a moment later

/// In the order of Face.
constexpr std::array<const char*, 8> kFaces = {"face-warning",           "face-presenting", "face-informing",
                                               "face-congratulating",    "face-paniquing",  "face-ashamed",
                                               "face-alternate-picture", "face-sad"};

/// Marks the first letter of the caption that no other button has taken; a caption with a mark of its own keeps it.
QString WithMnemonic(const QString& caption, QString& taken)
{
    if (caption.contains('&'))
        return caption;
    for (int i = 0; i < caption.size(); ++i) {
        const QChar letter = caption.at(i).toUpper();
        if (!letter.isLetterOrNumber() || taken.contains(letter))
            continue;
        taken += letter;
        return caption.left(i) + '&' + caption.mid(i);
    }
    return caption;
}

/// As many letters of each size of type stand on a line.
int TextWidth(const QFont& font)
{
    return kLettersPerLine * QFontMetrics(font).averageCharWidth();
}

int ShowMessageBox(const Message& message)
{
    frmMessageBox box(message, QApplication::activeWindow());
    ShowModal(box);
    return box.Code();
}
} // namespace

frmMessageBox::frmMessageBox(const Message& message, QWidget* parent) : QDialog(parent), message_(message)
{
    SessionState.InputBoxShown |= message.UseInputBox;
    BuildControls();
    BuildButtons();
    QVBoxLayout* page = PageLayout(this);
    page->addWidget(MakeCard(BodyLayout()));
    page->addLayout(ButtonsLayout());
    page->setSizeConstraint(QLayout::SetFixedSize);
    connect(chkStopAsking, &QCheckBox::toggled, this, &frmMessageBox::chkStopAsking_Click);
    LoadCaptions();
    FitText();
    AsMainButton(DefaultButton())->setFocus();
    QTimer::singleShot(kFaceDelay, this, &frmMessageBox::ShowFace);
}

void frmMessageBox::BuildControls()
{
    setObjectName("frmMessageBox");
    imgFace = Named<QLabel>("imgFace");
    imgFace->setFixedSize(kFaceSize, kFaceSize);
    imgFace->setVisible(FaceIndex() < kFaces.size());
    lblTitle = AsHead(Named<QLabel>("lblTitle"));
    lblTitle->setWordWrap(true);
    txtMessage = Named<QPlainTextEdit>("txtMessage");
    txtMessage->setProperty("look", "bare");
    txtMessage->setReadOnly(true);
    txtMessage->setTabChangesFocus(true);
    txtMessage->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    txtMsgBxInputBox = Named<QLineEdit>("txtMsgBxInputBox");
    txtMsgBxInputBox->setText(SessionState.InputBoxContents);
    txtMsgBxInputBox->setVisible(SessionState.InputBoxShown);
    FilterKeys(txtMsgBxInputBox, KeyFilter::MessageInput);
    chkStopAsking = Named<QCheckBox>("chkStopAsking");
    chkStopAsking->setVisible(message_.ShowStopAsking);
}

void frmMessageBox::BuildButtons()
{
    QString taken;
    for (int position = 0; position < static_cast<int>(cmdButton.size()); ++position) {
        QPushButton* button = cmdButton[static_cast<std::size_t>(position)] =
            Named<PromptButton>(ArrayName("cmdButton", position));
        const QString caption = message_.Captions.value(position);
        button->setText(WithMnemonic(caption, taken));
        button->setVisible(position < message_.Captions.size());
        button->setMinimumWidth(ButtonWidth(position));
        const int code = ResultOfButton(QString(caption).remove('&'), position);
        connect(button, &QPushButton::clicked, this, [this, code] { done(code); });
    }
}

QPushButton* frmMessageBox::DefaultButton() const
{
    const int last = std::max(static_cast<int>(message_.Captions.size()) - 1, 0);
    return cmdButton[static_cast<std::size_t>(std::clamp(message_.DefaultButton, 0, last))];
}

/// Captions given by the caller decide the width; it is only the least one, for no caption may be cut.
int frmMessageBox::ButtonWidth(int position) const
{
    if (message_.Set < Buttons::Custom1)
        return kButtonWidth;
    const bool narrow = message_.Set >= Buttons::Custom3;
    const int letters = static_cast<int>(message_.Captions.value(position).size());
    return letters * (narrow ? kTwipsPerLetterNarrow : kTwipsPerLetter) / kTwipsPerPixel;
}

void frmMessageBox::LoadCaptions()
{
    setWindowTitle(message_.Title);
    lblTitle->setText(message_.Title);
    lblTitle->setVisible(!message_.Title.isEmpty());
    const QString named = message_.Title.isEmpty() ? message_.Text : message_.Title;
    txtMessage->setAccessibleName(named);
    txtMsgBxInputBox->setAccessibleName(named);
    setAccessibleDescription(message_.Text);
    chkStopAsking->setText(T("Do not show me this message any more", "Ne plus afficher ce message à l'avenir"));
}

QLayout* frmMessageBox::BodyLayout()
{
    auto* text = Stack(8, {lblTitle, txtMessage, txtMsgBxInputBox, chkStopAsking});
    text->addStretch();
    auto* body = Beside(16);
    body->addWidget(imgFace, 0, Qt::AlignTop);
    body->addLayout(text);
    return body;
}

/// Up to three buttons stand as a row in the middle; four have a quarter of the box each.
QLayout* frmMessageBox::ButtonsLayout()
{
    auto* row = Beside(kButtonGap);
    const bool quarters = message_.Captions.size() == static_cast<int>(cmdButton.size());
    row->addStretch();
    for (QPushButton* button : cmdButton) {
        row->addWidget(button);
        if (quarters)
            row->addStretch();
    }
    if (!quarters)
        row->addStretch();
    return row;
}

void frmMessageBox::FitText()
{
    ensurePolished();
    txtMessage->ensurePolished();
    const int width =
        std::min(TextWidth(txtMessage->font()), FittingScreen(this, {kHighest, kHighest}).width() - kRoomBesideText);
    ShowColumns(width);
    const int lines = QFontMetrics(txtMessage->font()).lineSpacing();
    const int height = HeightOfText(width);
    const int most = std::min(kMostLines * lines, FittingScreen(this, {0, kHighest}).height() - kRoomAroundText);
    const bool scrolls = message_.ScrollBar || height > most;
    txtMessage->setVerticalScrollBarPolicy(scrolls ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    txtMessage->setFocusPolicy(scrolls ? Qt::StrongFocus : Qt::NoFocus); // an arrow would scroll it out of sight
    const int bar = scrolls ? txtMessage->verticalScrollBar()->sizeHint().width() : 0;
    txtMessage->setFixedSize(width + bar, std::min(height, most));
}

/// The text in the box, its columns under each other.
void frmMessageBox::ShowColumns(int width)
{
    constexpr int kWidestEntry = 2; // of the box: one half
    const TextColumns columns = MeasuredColumns(message_.Text, txtMessage->font(), width / kWidestEntry);
    QTextOption option = txtMessage->document()->defaultTextOption();
    QList<QTextOption::Tab> stops;
    for (const qreal stop : columns.Stops)
        stops << QTextOption::Tab(stop, QTextOption::LeftTab);
    option.setTabs(stops);
    txtMessage->document()->setDefaultTextOption(option);
    txtMessage->document()->setDocumentMargin(0);
    txtMessage->setPlainText(columns.Text);
}

int frmMessageBox::HeightOfText(int width) const
{
    QTextDocument measure;
    measure.setDefaultFont(txtMessage->font());
    measure.setDefaultTextOption(txtMessage->document()->defaultTextOption());
    measure.setDocumentMargin(0);
    measure.setPlainText(txtMessage->toPlainText());
    measure.setTextWidth(width);
    return static_cast<int>(std::ceil(measure.size().height())) + kRoomBelowText;
}

void frmMessageBox::ShowFace()
{
    if (FaceIndex() < kFaces.size())
        imgFace->setPixmap(Picture(kFaces[FaceIndex()], kFaceSize));
}

void frmMessageBox::chkStopAsking_Click()
{
    SessionState.MessageStopAsking = chkStopAsking->isChecked();
    cmdButton[0]->setFocus();
}

void frmMessageBox::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    adjustSize();
    QRect frame = frameGeometry();
    frame.moveCenter(screen()->geometry().center());
    move(frame.topLeft());
}

void frmMessageBox::done(int result)
{
    SessionState.InputBoxContents = txtMsgBxInputBox->text();
    if (message_.ShowStopAsking)
        SessionState.MessageStopAsking = chkStopAsking->isChecked();
    QDialog::done(result);
}

int frmMessageBox::Code() const
{
    return result() == 0 ? MessageCode::Cancel : result();
}

void InstallMessageBox()
{
    SetMessagePresenter(ShowMessageBox);
}

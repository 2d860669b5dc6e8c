// SPDX-FileCopyrightText: 2026 The HVTheme authors
// SPDX-License-Identifier: MIT

#include <inspector/changepanel.h>

#include <inspector/coloreditor.h>
#include <inspector/imageeditor.h>
#include <inspector/owncontrols.h>
#include <inspector/ownlook.h>

#include <QButtonGroup>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <limits>

namespace
{

constexpr int usualChoices = 4; // a key, and some entries behind it
constexpr int continuedMs = 1500; // what comes sooner is undone with what came before

// A widget as high as it wants to be, at the top of what a stack of them gives it.
QWidget *atTop(QWidget *widget)
{
    auto *page = new QWidget;
    auto *column = new QVBoxLayout(page);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(widget, 0, Qt::AlignTop | Qt::AlignLeft);
    return page;
}

} // namespace

ChangePanel::ChangePanel(ProgramChanges *changes, QWidget *parent)
    : QWidget(parent)
    , m_changes(changes)
    , m_title(new QLabel)
    , m_choices(new QVBoxLayout)
    , m_group(new QButtonGroup(this))
    , m_warning(new QLabel)
    , m_editors(new QStackedWidget)
    , m_color(new ColorEditor)
    , m_integer(new OwnSpinBox)
    , m_image(new ImageEditor)
    , m_flag(new OwnCheckBox)
    , m_problem(new QLabel)
{
    setAccessibleName(tr("Change the value"));
    m_title->setAccessibleName(tr("What is changed"));
    m_title->setWordWrap(true);
    m_warning->setWordWrap(true);
    m_warning->setAccessibleName(tr("What else changes"));
    m_problem->setWordWrap(true);
    m_problem->setAccessibleName(tr("Problem"));
    m_problem->setStyleSheet(warningStyleSheet());
    m_integer->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    m_integer->setAccessibleName(tr("Integer"));
    m_integer->setMinimumWidth(100);
    m_flag->setAccessibleName(tr("Flag"));
    m_editors->addWidget(m_color);
    m_editors->addWidget(atTop(m_integer));
    m_editors->addWidget(m_image);
    m_editors->addWidget(atTop(m_flag));
    m_choices->setSpacing(0);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 4, 0, 4);
    column->setSpacing(4);
    column->addWidget(m_title);
    column->addLayout(m_choices);
    makeChoices(
        usualChoices); // now, as the focus goes from child to child in the order of their making
    column->addWidget(m_warning);
    column->addWidget(m_problem);
    column->addWidget(m_editors, 1);

    connect(m_color, &ColorEditor::edited, this, &ChangePanel::change);
    connect(m_integer, qOverload<int>(&QSpinBox::valueChanged), this,
            [this](int value) { change(QString::number(value)); });
    connect(m_image, &ImageEditor::edited, this, &ChangePanel::change);
    connect(m_image, &ImageEditor::refused, this, &ChangePanel::tell);
    connect(m_flag, &QCheckBox::toggled, this,
            [this](bool on) { change(on ? QStringLiteral("1") : QStringLiteral("0")); });
    const auto edits = findChildren<QLineEdit *>();
    for (QLineEdit *edit : edits)
        edit->installEventFilter(this);
    m_integer->installEventFilter(this); // it hands its edit such events past all filters
    setSubject({}, {});
}

// Undo takes back changes, not letters of a text that is a change already.
bool ChangePanel::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Z && (key->modifiers() & Qt::ControlModifier)) {
            event->ignore();
            return true;
        }
    }
    return QWidget::eventFilter(object, event);
}

const ChangeTarget *ChangePanel::target() const
{
    return m_target < m_subject.targets.size() ? &m_subject.targets.at(m_target) : nullptr;
}

void ChangePanel::setSubject(const ChangeSubject &subject, const QString &folder)
{
    const bool isSame = subject.key == m_subject.key && subject.kind == m_subject.kind;
    m_subject = subject;
    m_folder = folder;
    m_sinceChange.invalidate();
    if (!isSame || m_target >= subject.targets.size())
        m_target = 0;
    tell(QString());
    showTargets();
    showTarget();
}

void ChangePanel::refresh(const ChangeSubject &subject)
{
    m_subject = subject;
    if (m_target >= subject.targets.size())
        m_target = 0;
    showTargets();
    showTarget();
}

void ChangePanel::makeChoices(int count)
{
    for (int i = int(m_group->buttons().size()); i < count; ++i) {
        auto *choice = new QRadioButton;
        m_group->addButton(choice, i);
        m_choices->addWidget(choice);
        connect(choice, &QAbstractButton::clicked, this, [this, i] {
            m_target = i;
            m_sinceChange.invalidate();
            tell(QString());
            showTarget();
        });
    }
}

void ChangePanel::showTargets()
{
    QString title = m_subject.key;
    if (!m_subject.property.isEmpty())
        title = tr("%1 from %2").arg(m_subject.property, m_subject.key);
    m_title->setText(m_subject.targets.isEmpty()
                         ? m_subject.reason
                         : tr("<b>Change</b> %1, in").arg(title.toHtmlEscaped()));
    setVisible(!m_subject.targets.isEmpty() || !m_subject.reason.isEmpty());
    m_editors->setVisible(!m_subject.targets.isEmpty());
    makeChoices(int(m_subject.targets.size()));
    const auto choices = m_group->buttons();
    for (QAbstractButton *choice : choices) {
        const int i = m_group->id(choice);
        choice->setVisible(i < m_subject.targets.size());
        if (i >= m_subject.targets.size())
            continue;
        const ChangeTarget &one = m_subject.targets.at(i);
        choice->setText(targetText(one));
        choice->setToolTip(one.place.position.line ? one.place.text() : one.place.file);
        choice->setChecked(i == m_target);
    }
}

void ChangePanel::showTarget()
{
    const ChangeTarget *now = target();
    QStringList warnings;
    if (now && now->isOfDefaultFile)
        warnings << tr("It stands in the default file: a change there changes all themes.");
    if (now && m_subject.keysOfAccent.contains(now->fileKey))
        warnings << tr(
            "The program shows its accent instead: a change may be seen only without it.");
    m_warning->setText(warnings.join(QLatin1Char(' ')));
    m_warning->setVisible(!warnings.isEmpty());
    const QString shown = now ? now->place.file % QLatin1Char('\n') % now->fileKey : QString();
    if (shown != m_shown) { // a dialog that was left open would write there
        m_color->closeDialog();
        m_image->closeDialog();
    }
    m_shown = shown;
    if (!now)
        return;
    switch (now->kind) {
    case Kind::Palette:
    case Kind::Color:
        m_color->setEntries(m_subject.palette);
        m_color->setPartner(m_subject.partner);
        m_color->setValue(now->text,
                          now->kind == Kind::Palette ? ColorEditor::Entries::AsColors
                                                     : ColorEditor::Entries::Named);
        m_editors->setCurrentIndex(0);
        break;
    case Kind::Integer: {
        const QSignalBlocker blocker(m_integer);
        m_integer->setValue(now->text.toInt());
        m_editors->setCurrentIndex(1);
        break;
    }
    case Kind::ImageFile:
        m_image->setValue(now->text, m_folder);
        m_editors->setCurrentIndex(2);
        break;
    case Kind::Flag: {
        const QSignalBlocker blocker(m_flag);
        m_flag->setText(now->key);
        m_flag->setChecked(now->text.toInt() != 0);
        m_editors->setCurrentIndex(3);
        break;
    }
    case Kind::Gradient:
        break;
    }
    setFocusProxy(m_editors->currentIndex() == 0       ? static_cast<QWidget *>(m_color)
                      : m_editors->currentIndex() == 1 ? m_integer
                      : m_editors->currentIndex() == 2 ? static_cast<QWidget *>(m_image)
                                                       : m_flag);
}

void ChangePanel::change(const QString &value)
{
    const ChangeTarget *now = target();
    if (!now)
        return;
    const bool isContinued = m_sinceChange.isValid() && m_sinceChange.elapsed() < continuedMs;
    const auto step = isContinued ? ThemeEditor::Step::Continued : ThemeEditor::Step::New;
    const bool isChanged = m_changes->setValue(now->place.file, now->fileKey, value, step);
    m_sinceChange.start();
    tell(isChanged ? QString() : m_changes->problem());
}

void ChangePanel::tell(const QString &problem)
{
    m_problem->setText(problem);
    m_problem->setVisible(!problem.isEmpty());
}

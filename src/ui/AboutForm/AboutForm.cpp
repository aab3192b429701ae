#include "ui/AboutForm/AboutForm.h"

#include <QGuiApplication>
#include <QProcess>
#include <QScreen>
#include <QStandardPaths>
#include <QSysInfo>
#include <QThread>

namespace ovisto {

namespace {

/// The programs with which desktops describe the computer.
constexpr struct {
    const char* program;
    const char* argument;
} kSystemTools[] = {{"kinfocenter", ""}, {"gnome-control-center", "info-overview"}, {"hardinfo", ""}};

bool startSystemTool()
{
    for (const auto& tool : kSystemTools) {
        const QString program = QStandardPaths::findExecutable(QString::fromLatin1(tool.program));
        if (!program.isEmpty())
            return QProcess::startDetached(
                program, QString::fromLatin1(tool.argument).split(QLatin1Char(' '), Qt::SkipEmptyParts));
    }
    return false;
}

} // namespace

AboutForm::AboutForm(QWidget* owner) : QDialog(owner)
{
    ui.setupUi(this);
    QFont large = ui.Title->font();
    large.setPointSizeF(1.8 * large.pointSizeF());
    large.setBold(true);
    ui.Title->setFont(large);
    ui.Version->setText(tr("Version %1").arg(QStringLiteral(OVISTO_VERSION)));
    ui.Libraries->setText(tr("Built with Qt %1, libxml2 %2 and utfcpp.")
                              .arg(QString::fromLatin1(qVersion()), QStringLiteral(OVISTO_LIBXML2_VERSION)));
    connect(ui.FormCloser, &QPushButton::clicked, this, &AboutForm::accept);
    connect(ui.SystemInfoShower, &QPushButton::clicked, this, &AboutForm::showSystemInfo);
}

void AboutForm::showSystemInfo()
{
    if (startSystemTool())
        return;
    QStringList lines;
    lines
        << tr("System: %1").arg(QSysInfo::prettyProductName())
        << tr("Kernel: %1 %2").arg(QSysInfo::kernelType(), QSysInfo::kernelVersion())
        << tr("Computer: %1").arg(QSysInfo::machineHostName())
        << tr("Processor: %1, %n core(s)", nullptr, QThread::idealThreadCount()).arg(QSysInfo::currentCpuArchitecture())
        << tr("Window system: %1").arg(QGuiApplication::platformName());
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QSize size = screen->size() * screen->devicePixelRatio();
        lines << tr("Screen: %1 x %2").arg(size.width()).arg(size.height());
    }
    ui.SystemInfo->setPlainText(lines.join(QLatin1Char('\n')));
    ui.SystemInfo->show();
    adjustSize();
    ui.SystemInfo->setFocus();
}

} // namespace ovisto

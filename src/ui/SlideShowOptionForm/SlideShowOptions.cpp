// SPDX-License-Identifier: MIT

#include "ui/SlideShowOptionForm/SlideShowOptions.h"

#include "common/Error.h"
#include "common/text/NumberText.h"

#include <utility>

namespace ovisto {

namespace {

const QLatin1String kFullscreen("SlideFullscreen");
const QLatin1String kResize("SlideResize");
const QLatin1String kDetails("SlideDetails");
const QLatin1String kSeconds("SlideSecondsPer");

} // namespace

SlideShowOptions loadSlideShowOptions(const Settings& settings)
{
    return {.fullscreen = settings.choice(kFullscreen, true),
            .resize = settings.choice(kResize, true),
            .details = settings.choice(kDetails, true),
            .seconds = settings.GetSetting(kSeconds, QStringLiteral("5"))};
}

void saveSlideShowOptions(const SlideShowOptions& options, Settings& settings)
{
    settings.saveChoice(kFullscreen, options.fullscreen);
    settings.saveChoice(kResize, options.resize);
    settings.saveChoice(kDetails, options.details);
    settings.SaveSetting(kSeconds, options.seconds);
}

std::int16_t wholeSeconds(const QString& text)
{
    const std::int32_t seconds = toLong(text.toStdString());
    if (!std::in_range<std::int16_t>(seconds))
        throw systemError(kOverflow);
    return static_cast<std::int16_t>(seconds);
}

} // namespace ovisto

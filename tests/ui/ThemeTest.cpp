#include <algorithm>
#include <cstdio>

#include <gtest/gtest.h>

#include "support/Contrast.h"
#include "ui/Theme.h"

namespace zephyrix {
namespace {

using testing::contrast;
using testing::over;
using Color = Theme::Color;
using Scheme = Theme::Scheme;

// A pressed row: half-white in a view that blends it with the surface.
QColor pressed(const QColor& ground, Scheme scheme) {
    QColor white(255, 255, 255, 128);
    white.setAlphaF(white.alphaF() * Theme::color(Color::VibrancyContent, scheme).alphaF());
    return over(over(ground, Theme::color(Color::VibrancyShade, scheme)), white);
}

TEST(Theme, EveryTextStandsOutFromTheSurfaceOverAnyDesktop) {
    double worst = 100.0;
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark})
        for (const QColor desktop : {Qt::black, Qt::white, Qt::gray})
            for (const Color surface : {Color::SurfaceTop, Color::SurfaceBottom})
                for (const Color text : {Color::PrimaryText, Color::SecondaryText}) {
                    const QColor ground = over(desktop, Theme::color(surface, scheme));
                    const QColor hovered = over(ground, Theme::color(Color::HoverShade, scheme));
                    const QColor ink = Theme::color(text, scheme);
                    worst = std::min({worst, contrast(ink, ground), contrast(ink, hovered),
                                      contrast(ink, pressed(ground, scheme))});
                }
    std::printf("worst contrast of a text: %.2f : 1\n", worst);
    EXPECT_GE(worst, 4.5);
}

TEST(Theme, FocusRingStandsOutFromTheSurface) {
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark})
        for (const QColor desktop : {Qt::black, Qt::white}) {
            const QColor ground = over(desktop, Theme::color(Color::SurfaceTop, scheme));
            EXPECT_GE(contrast(Theme::color(Color::FocusRing, scheme), ground), 3.0);
        }
}

TEST(Theme, EveryTextStyleHasOneOfTheTestedColours) {
    for (const char* name : {"title", "time", "strong", "words", "value", "unit", "windSpeed",
                             "day", "high", "low", "button", "message"}) {
        const auto style = Theme::textStyleNamed(QString::fromLatin1(name));
        ASSERT_TRUE(style) << name;
        EXPECT_TRUE(Theme::textColor(*style) == Color::PrimaryText ||
                    Theme::textColor(*style) == Color::SecondaryText);
    }
    EXPECT_FALSE(Theme::textStyleNamed(QStringLiteral("Title")));
}

}  // namespace
}  // namespace zephyrix

#include "end_to_end/game_image.h"
#include "simulator/iso9660_writer.h"
#include "simulator/units.h"

#include <QFile>

#include <gtest/gtest.h>

namespace tarnwell::test {

void makeGameImage(const QString& file, const QString& label, const QString& startup,
                   const QByteArray& data) {
    // All that the image tells of itself lies in its first part.
    constexpr std::uint64_t kHead = simulator::kSmallestDiscBytes, kUnit = simulator::kMb;
    const std::uint64_t tail = (static_cast<std::uint64_t>(data.size()) + kUnit - 1) / kUnit * kUnit;
    simulator::writeDiscImage(file.toStdWString(),
                              {label.toStdString(), startup.toStdString(), kHead + tail});
    QFile image(file);
    ASSERT_TRUE(image.open(QFile::ReadWrite)) << file.toStdString();
    ASSERT_TRUE(image.seek(static_cast<qint64>(kHead)));
    ASSERT_EQ(image.write(data), data.size());
}

} // namespace tarnwell::test

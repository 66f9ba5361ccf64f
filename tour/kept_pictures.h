#pragma once

#include <QDir>
#include <QImage>
#include <QRect>

/// Pictures of windows that are kept, as in the guide, and how they compare with what the tour has just seen.
namespace tarnwell::tour {

/// Notes in a picture which places look different each time. They are saved with it.
void noteVaryingPlaces(QImage& picture, const QList<QRect>& places);

/// What a user would notice in which the two differ, in words; nothing if they show the same. The varying
/// places of either do not count, but must be the same ones.
QString difference(const QImage& kept, const QImage& fresh);

/// The picture that the tour has left of the step `name` in a folder; an invalid one if there is none.
QImage freshPicture(const QDir& folder, const QString& name);

/// The file of that picture; empty if there is none.
QString freshFile(const QDir& folder, const QString& name);

} // namespace tarnwell::tour

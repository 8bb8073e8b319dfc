#include "files/EntityEncoding.h"

#include <array>

namespace TVR {

namespace {

struct Entity {
  char16_t letter;
  const char* name;
};

/// In the order in which both directions replace. Required oddity: â and Â share an entity, which
/// becomes the first of them.
constexpr std::array entities = {
    Entity{u'ä', "&auml;"},   Entity{u'ö', "&ouml;"},   Entity{u'ü', "&uuml;"},
    Entity{u'Ä', "&Auml;"},   Entity{u'Ö', "&Ouml;"},   Entity{u'Ü', "&Uuml;"},
    Entity{u'ß', "&szlig;"},  Entity{u'à', "&agrave;"}, Entity{u'À', "&Agrave;"},
    Entity{u'Á', "&Aacute;"}, Entity{u'á', "&aacute;"}, Entity{u'â', "&Acirc;"},
    Entity{u'Â', "&Acirc;"},  Entity{u'Ã', "&Atilde;"}, Entity{u'Ç', "&Ccedil;"},
    Entity{u'ç', "&ccedil;"}, Entity{u'È', "&Egrave;"}, Entity{u'è', "&egrave;"},
    Entity{u'É', "&Eacute;"}, Entity{u'é', "&eacute;"}, Entity{u'Ê', "&Ecirc;"},
    Entity{u'ê', "&ecirc;"},  Entity{u'Å', "&Aring;"},  Entity{u'å', "&aring;"},
};

} // namespace

QString encodeEntities(const QString& text) {
  QString result = text;
  for (const Entity& entity : entities)
    result.replace(QChar(entity.letter), QLatin1String(entity.name));
  return QString::fromLatin1(result.toUtf8().constData()); // a C text: it ends at the first NUL
}

QString decodeEntities(const QString& text) {
  if (!text.contains('&'))
    return text;
  QString result = text;
  for (const Entity& entity : entities)
    result.replace(QLatin1String(entity.name), QChar(entity.letter));
  return result;
}

} // namespace TVR

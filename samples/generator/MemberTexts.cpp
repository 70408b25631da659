#include "generator/MemberTexts.h"

#include "generator/Random.h"

#include <array>

namespace generator {

namespace {

constexpr std::array languageNames{"English", "French", "German", "Spanish"};

constexpr std::array<std::array<const char *, 16>, 4> trades{{
    {"Dairy", "Timber", "Glass", "Steel", "Paper", "Textiles", "Ferries", "Bakery", "Cables",
     "Bearings", "Furniture", "Chemistry", "Engines", "Rail", "Optics", "Energy"},
    {"Crémerie", "Bois", "Verre", "Acier", "Papier", "Tissus", "Traversées", "Boulangerie",
     "Câbles", "Roulements", "Mobilier", "Chimie", "Moteurs", "Rail", "Optique", "Énergie"},
    {"Molkerei", "Holz", "Glas", "Stahl", "Papier", "Stoffe", "Fähren", "Bäckerei", "Kabel",
     "Wälzlager", "Möbel", "Chemie", "Motoren", "Bahn", "Optik", "Energie"},
    {"Lechería", "Madera", "Vidrio", "Acero", "Papel", "Textil", "Barcos", "Panadería", "Cables",
     "Rodamientos", "Muebles", "Química", "Motores", "Vías", "Óptica", "Energía"},
}};

constexpr std::array cities{"Lyon",   "Bergen", "Malmö",   "Porto",  "Kraków", "Leeds",
                            "Aarhus", "Graz",   "Zürich",  "Turin",  "Bilbao", "Cork",
                            "Ghent",  "Basel",  "Münster", "Tallinn"};

} // namespace

QByteArray languageName(qint32 language)
{
    if (language < qint32(languageNames.size()))
        return languageNames[language];
    return "Language" + QByteArray::number(language + 1);
}

QByteArray description(qint32 member, qint32 language, quint64 seed)
{
    Random random(seed ^ (quint64(member) * 0xD1342543DE82EF95ULL));
    const auto &words = trades[language % qint32(trades.size())];
    QByteArray text(words[random.below(qint32(words.size()))]);
    text.append(' ').append(cities[random.below(qint32(cities.size()))]).append(' ');
    return text.append(QByteArray::number(1 + member % 10000));
}

} // namespace generator

#include "core/machine_ports.h"

#include <QRandomGenerator>

namespace kavro {

double SystemRandom::next()
{
    return QRandomGenerator::global()->generateDouble();
}

} // namespace kavro

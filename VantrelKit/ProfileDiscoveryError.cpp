#include "VantrelKit/ProfileDiscoveryError.h"

namespace vantrel {

ProfileDiscoveryError ProfileDiscoveryError::accessDenied(QString path)
{
    return {Kind::accessDenied, std::move(path), {}};
}

ProfileDiscoveryError ProfileDiscoveryError::readFailed(QString path, QString reason)
{
    return {Kind::readFailed, std::move(path), std::move(reason)};
}

} // namespace vantrel

#include "Platform/AppProcess.h"

using namespace Qt::StringLiterals;

namespace vantrel {

QStringList appArguments(const InstanceRequest &request)
{
    switch (request.kind) {
    case InstanceRequest::Kind::activate: return {};
    case InstanceRequest::Kind::open: return request.links;
    case InstanceRequest::Kind::action: return {u"--action"_s, request.action};
    }
    Q_UNREACHABLE();
}

} // namespace vantrel

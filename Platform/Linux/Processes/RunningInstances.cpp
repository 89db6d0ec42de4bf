#include "Platform/Linux/Processes/RunningInstances.h"

#include <algorithm>

namespace vantrel {

void RunningInstances::add(const QString &folder, ProcessHandle process)
{
    if (!process.isAlive())
        return;
    for (const auto &known : instances_) {
        if (known->process.process() == process.process() && known->process.isAlive()) {
            if (!known->folders.contains(folder))
                known->folders.append(folder);
            return;
        }
    }
    auto notifier = std::make_unique<QSocketNotifier>(process.descriptor(), QSocketNotifier::Read);
    auto instance = std::make_unique<Instance>(Instance{QStringList(folder), std::move(process), std::move(notifier)});
    QObject::connect(instance->notifier.get(), &QSocketNotifier::activated, instance->notifier.get(),
                     [this, ended = instance.get()] { end(ended); });
    instances_.push_back(std::move(instance));
}

bool RunningInstances::isRunning(const QString &folder) const
{
    return std::ranges::any_of(instances_, [&folder](const auto &instance) {
        return instance->folders.contains(folder) && instance->process.isAlive();
    });
}

void RunningInstances::end(const Instance *instance)
{
    const auto place = std::ranges::find(instances_, instance, &std::unique_ptr<Instance>::get);
    const QStringList folders = instance->folders;
    instances_.erase(place);
    ended_(folders);
}

} // namespace vantrel

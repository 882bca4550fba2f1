// SPDX-License-Identifier: MIT
#include "App/WindowModule.h"
#include "CommandLine/CommandLine.h"
#include "Platform/Platform.h"

#include <dlfcn.h>

namespace {

int openWindow(int argc, char **argv)
{
    // It stays loaded: what it registered with the toolkit lives as long as the process.
    void *module = ::dlopen(WindowModule::kFile, RTLD_NOW | RTLD_LOCAL);
    void *entry = module != nullptr ? ::dlsym(module, WindowModule::kEntry) : nullptr;
    if (entry == nullptr)
        return CommandLine::explainMissingWindow(::dlerror());
    const int status = reinterpret_cast<WindowModule::Entry *>(entry)(argc, argv);
    return status == WindowModule::kNoDisplay ? CommandLine::explainNoWindow() : status;
}

} // namespace

int main(int argc, char **argv)
{
    const QList<QByteArray> arguments = CommandLine::argumentsOf(argc, argv);
    return arguments.isEmpty() ? openWindow(argc, argv) : CommandLine::run(arguments, makePlatform);
}

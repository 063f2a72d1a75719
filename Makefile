# SPDX-License-Identifier: MIT
# The few commands that one types here. Everything is built by CMake, in build/<preset>.

JOBS := $(shell nproc)

.PHONY: all tools demo test bench packages regenerate check-generated format clean

all:
	cmake --preset release
	cmake --build --preset release --parallel $(JOBS)

# Installs what is missing (as root, on Debian 12), and builds the inspector: build/release/ethsw-inspect
tools:
	@scripts/install-packages tools
	@cmake --preset release -DTARN_BUILD_TOOLS=ON > /dev/null
	@cmake --build --preset release --parallel $(JOBS) > /dev/null

# Installs what is missing, builds, lets a client talk to a service, and looks at a message.
demo:
	@scripts/install-packages demo
	@$(MAKE) --no-print-directory tools
	@examples/run-demo build/release

# Installs what is missing, builds, and runs the whole suite on every target.
test:
	@scripts/install-packages test
	@scripts/run-tests

# Installs what is missing, and measures the library beside its peers on x86_64 and i686.
bench:
	@scripts/bench

# Installs what is missing, and builds the Debian packages: build/packages.
packages:
	@scripts/install-packages packages
	@scripts/package

# After a change of the schema: writes the record files anew, or only compares.
regenerate:
	@generator/regenerate

check-generated:
	@generator/regenerate --check

format:
	@scripts/format

clean:
	rm -rf build

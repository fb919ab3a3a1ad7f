# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
#
# A thin front for CMake: each target installs missing packages and then does the one thing it is named after.

build_packages = @build @linux
test_packages = $(build_packages) @deb iproute2 python3 python3-pymodbus python3-pytest python3-serial python3-serial-asyncio mbpoll \
    libmodbus-dev mono-mcs pkg-config tshark xdotool xvfb
benchmark_packages = $(test_packages) libqt5serialbus5-dev libbenchmark-dev
lint_packages = $(benchmark_packages) clang-format clang-tidy clazy cmake-format codespell cppcheck flake8 lua-check reuse shellcheck

.PHONY: run test test-windows lint package bench fuzz coverage soak build clean

run:
	@scripts/require-packages $(build_packages)
	@$(MAKE) --no-print-directory build PRESET=release TARGET=RavelMonitorOrbisSimulator
	@scripts/run build-release/RavelMonitorOrbisSimulator $(ARGUMENTS)

# PRESET=asan, tsan or coverage runs the same suite instrumented; PRESET=valgrind, which needs valgrind, under it.
test: PRESET ?= release
test:
	@scripts/require-packages $(test_packages)
	@$(MAKE) --no-print-directory build PRESET=$(PRESET)
	ctest --test-dir build-$(PRESET) --output-on-failure --no-tests=error

# The same tests of the Windows program, as its package brings it, under Wine. Qt for Windows comes from the archive that
# QT_WINDOWS_ARCHIVE names, or is built once from the distribution's sources.
test-windows:
	scripts/test-windows

lint:
	@scripts/require-packages $(lint_packages)
	scripts/lint

# Leaves what it makes in dist/: all that a release hands out.
package:
	@scripts/require-packages git python3
	rm -rf dist
	scripts/package-windows
	scripts/package-linux
	SOURCE_DATE_EPOCH=$$(git log -1 --format=%ct) scripts/bill-of-materials dist > dist/RavelMonitorOrbisSimulator.cdx.json
	cd dist && sha256sum * > SHA256SUMS

bench:
	@scripts/require-packages $(benchmark_packages) nodejs
	scripts/bench --output docs/benchmarks.md

# FOR=10000000 runs, or FOR=600s, for each target.
fuzz: FOR ?= 60s
fuzz:
	@scripts/require-packages $(test_packages) clang libclang-rt-dev
	scripts/fuzz $(FOR)

coverage:
	@scripts/require-packages $(test_packages) gcovr
	scripts/coverage

# Mixed load for so many minutes.
soak: MINUTES ?= 60
soak:
	@scripts/require-packages $(test_packages)
	@$(MAKE) --no-print-directory build PRESET=release
	scripts/soak $(MINUTES)

build: TARGET ?= all
build:
	cmake --preset $(PRESET) --log-level=WARNING
	cmake --build --preset $(PRESET) --target $(TARGET)

clean:
	rm -rf build-*

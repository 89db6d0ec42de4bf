"""Files as a browser of the Chromium family writes them after some months of use: sorted keys, no blanks, UTF-8."""

import json
from base64 import b64encode
from random import Random
from typing import Any

PREFERENCES_SIZE = 256 * 1024

Json = dict[str, Any]

_SITES_WITH_SETTINGS = 270
_VERSION = "156.0.8078.79"


def preferences(random: Random, name: str | None) -> bytes:
    """A profile's Preferences, filled to their size by the longest text that real ones have: the state of its sync."""
    content: Json = {
        "account_info": [_account(random)],
        "alternate_error_pages": {"backup": True},
        "apps": {"shortcuts_arch": "", "shortcuts_version": 7},
        "autofill": {"last_version_deduped": 156, "upload_encoding_seed": _hex(random, 16)},
        "bookmark_bar": {"show_on_all_tabs": random.random() < 0.5},
        "browser": {"has_seen_welcome_page": True, "window_placement": _window_placement(random)},
        "commerce_daily_metrics_last_update_time": _time(random),
        "countryid_at_install": 17477,
        "default_apps_install_state": 3,
        "domain_diversity": {"last_reporting_timestamp": _time(random)},
        "extensions": {"alerts": {"initialized": True}, "chrome_url_overrides": {}, "settings": _extensions(random)},
        "gaia_cookie": {"changed_time": random.random() * 1e9, "hash": _base64(random, 20)},
        "google": {"services": {"consented_to_sync": True, "signin_scoped_device_id": _hex(random, 16)}},
        "intl": {"selected_languages": "de-DE,de,en-US,en"},
        "language_model_counters": {"de": random.randrange(900), "en": random.randrange(900)},
        "media": {"engagement": {"schema_version": 5}},
        "ntp": {"num_personal_suggestions": 8, "shortcust_visible": True},
        "optimization_guide": {"hintsfetcher": {"hosts_successfully_fetched": _hosts_fetched(random)}},
        "profile": _profile_section(random, name),
        "protection": {"macs": {"extensions": {"settings": _macs(random, 24)}, "homepage": _hex(random, 32).upper()}},
        "sessions": {"event_log": [_session_event(random) for _ in range(20)], "session_data_status": 3},
        "spellcheck": {"dictionaries": ["de", "en-US"]},
        "sync": {"requested": True, "transport_data_per_account": {_base64(random, 32): {"sync.bag_of_chips": ""}}},
        "translate_site_blacklist_with_time": {host: _time(random) for host in _hosts(random, 12)},
        "web_apps": {"daily_metrics": {}, "last_preinstall_synchronize_version": "156"},
        "zerosuggest": {"cachedresults": ")]}'\n[\"\",[],[],[],{\"google:clientdata\":{\"bpc\":false,\"tlw\":false}}]"},
    }
    account = next(iter(content["sync"]["transport_data_per_account"].values()))
    account["sync.bag_of_chips"] = "A" * (PREFERENCES_SIZE - len(_written(content)))
    return _written(content)


def local_state(random: Random, profiles: dict[str, tuple[str | None, bool]]) -> bytes:
    """A browser's Local State; each profile's folder comes with its name, if known, and whether it has a picture."""
    content: Json = {
        "accessibility": {"captions": {"common_models_path": "", "soda_binary_path": ""}},
        "autofill": {"ablation_seed": _base64(random, 8), "states_data_dir": "/home/user/AutofillStates/2025.6.13"},
        "browser": {"enabled_labs_experiments": ["ozone-platform-hint@3"], "shortcut_migration_version": _VERSION},
        "hardware_acceleration_mode_previous": True,
        "legacy": {"profile": {"name": {"migrated": True}}},
        "management": {"platform": {"azure_active_directory": 0, "enterprise_mdm_win": 0}},
        "network_time": {"network_time_mapping": {"local": 1.76e12, "network": 1.76e12, "ticks": 2.1e10}},
        "optimization_guide": {"model_store_metadata": _models(random), "on_device": {"last_version": _VERSION}},
        "os_crypt": {"portal": {"prev_desktop": "GNOME", "prev_init_success": False}},
        "policy": {"last_statistics_update": _time(random)},
        "privacy_budget": {"meta_experiment_activation_salt": random.random()},
        "profile": _profiles_section(random, profiles),
        "session_id_generator_last_value": str(random.randrange(2**31)),
        "signin": {"active_accounts": {_base64(random, 32): _time(random) for _ in range(6)}},
        "subresource_filter": {"ruleset_version": {"checksum": random.randrange(2**31), "content": "9.64.0"}},
        "tab_stats": {"discards_external": 0, "last_daily_sample": _time(random), "max_tabs_per_window": 41},
        "ukm": {"persisted_logs": [_log(random, 4000) for _ in range(4)]},
        "updateclientdata": {"apps": {_letters(random): _component(random) for _ in range(32)}},
        "user_experience_metrics": _metrics(random),
        "variations_compressed_seed": _base64(random, 96 * 1024),
        "variations_country": "de",
        "variations_google_groups": {folder: [random.randrange(2**31) for _ in range(4)] for folder in profiles},
        "variations_last_fetch_time": _time(random),
        "variations_permanent_consistency_country": [_VERSION, "de"],
        "variations_seed_signature": _base64(random, 70),
        "was": {"restarted": False},
    }
    return _written(content)


def _profiles_section(random: Random, profiles: dict[str, tuple[str | None, bool]]) -> Json:
    infos = {folder: _info(random, name, has_picture) for folder, (name, has_picture) in profiles.items()}
    return {
        "info_cache": infos,
        "last_active_profiles": list(profiles)[:2],
        "last_used": next(iter(profiles)),
        "metrics": {"next_bucket_index": len(profiles) + 1},
        "profile_counts_reported": _time(random),
        "profiles_created": len(profiles) + 3,
        "profiles_order": list(profiles),
    }


def _info(random: Random, name: str | None, has_picture: bool) -> Json:
    info: Json = {
        "active_time": 1.76e9 + random.random() * 1e7,
        "avatar_icon": f"chrome://theme/IDR_PROFILE_AVATAR_{random.randrange(26, 56)}",
        "background_apps": False,
        "default_avatar_fill_color": -random.randrange(2**24),
        "default_avatar_stroke_color": -1,
        "enterprise_label": "",
        "first_account_name_hash": random.randrange(2**31),
        "force_signin_profile_locked": False,
        "gaia_given_name": "Alex" if has_picture else "",
        "gaia_id": str(random.randrange(10**20, 10**21)) if has_picture else "",
        "gaia_name": "Alex Example" if has_picture else "",
        "gaia_picture_file_name": "Google Profile Picture.png" if has_picture else "",
        "hosted_domain": "NO_HOSTED_DOMAIN" if has_picture else "",
        "is_consented_primary_account": has_picture,
        "is_ephemeral": False,
        "is_glic_eligible": False,
        "is_managed": 0,
        "is_using_default_avatar": not has_picture,
        "is_using_default_name": False,
        "last_downloaded_gaia_picture_url_with_size": f"https://accounts.example/{_letters(random)}=s256-c-ns",
        "managed_user_id": "",
        "metrics_bucket_index": random.randrange(1, 30),
        "profile_color_seed": -random.randrange(2**24),
        "profile_highlight_color": -random.randrange(2**24),
        "shortcut_name": "",
        "signin.with_credential_provider": False,
        "user_accepted_account_management": False,
        "user_name": f"{_letters(random)[:10]}@mail.example" if has_picture else "",
    }
    return info if name is None else info | {"name": name}


def _profile_section(random: Random, name: str | None) -> Json:
    hosts = _hosts(random, _SITES_WITH_SETTINGS)
    patterns = [f"https://{host}:443,*" for host in hosts]
    exceptions = {
        "app_banner": {key: _setting(random, {"couldShowBannerEvents": 1.34e16}) for key in patterns[::3]},
        "client_hints": {key: _setting(random, {"client_hints": [9, 10, 11, 13, 14]}) for key in patterns[::2]},
        "cookie_controls_metadata": {f"https://[*.]{host},*": _setting(random, {}) for host in hosts},
        "http_allowed": {},
        "media_engagement": {key: _media_engagement(random) for key in patterns},
        "notifications": {key: _setting(random, random.choice((1, 2))) for key in patterns[::4]},
        "permission_autoblocking_data": {key: _setting(random, {"Geolocation": {"count": 1}}) for key in patterns[::4]},
        "site_engagement": {key: _site_engagement(random) for key in patterns},
        "ssl_cert_decisions": {},
    }
    section: Json = {
        "avatar_bubble_tutorial_shown": 2,
        "avatar_index": random.randrange(26, 56),
        "content_settings": {"exceptions": exceptions, "pref_version": 1},
        "created_by_version": _VERSION,
        "creation_time": _time(random),
        "exit_type": "Normal",
        "last_engagement_time": _time(random),
        "last_time_password_store_metrics_reported": random.random() * 1e9,
        "managed_user_id": "",
        "password_hash_data_list": [],
        "were_old_google_logins_removed": True,
    }
    return section if name is None else section | {"name": name}


def _setting(random: Random, value: Any) -> Json:
    return {"last_modified": _time(random), "setting": value}


def _site_engagement(random: Random) -> Json:
    when = float(_time(random))
    points = random.random() * 15
    score = {"lastEngagementTime": when, "lastShortcutLaunchTime": 0.0, "pointsAddedToday": points, "rawScore": points}
    return _setting(random, score)


def _media_engagement(random: Random) -> Json:
    value = {"hasHighScore": False, "lastMediaPlaybackTime": float(_time(random)), "mediaPlaybacks": 1, "visits": 3}
    return {"expiration": _time(random), "last_modified": _time(random), "lifetime": "7776000000000", "setting": value}


def _extensions(random: Random) -> Json:
    return {_letters(random): _extension(random) for _ in range(16)}


def _extension(random: Random) -> Json:
    permissions = ["alarms", "contextMenus", "cookies", "notifications", "storage", "tabs", "webRequest"]
    access = {"api": permissions, "explicit_host": ["<all_urls>"], "scriptable_host": ["<all_urls>"]}
    manifest = {
        "background": {"service_worker": "background.js"},
        "content_scripts": [{"js": ["content.js"], "matches": ["http://*/*", "https://*/*"]}],
        "description": "Blocks <unwanted> content, fills forms & keeps pages readable.",
        "icons": {str(size): f"icons/{size}.png" for size in (16, 32, 48, 128)},
        "key": _base64(random, 294),
        "manifest_version": 3,
        "name": f"Extension {random.randrange(1000)}",
        "permissions": permissions,
        "update_url": "https://updates.example/service/update2/crx",
        "version": f"{random.randrange(9)}.{random.randrange(99)}.{random.randrange(99)}",
    }
    return {
        "active_permissions": access,
        "commands": {},
        "content_settings": [],
        "creation_flags": 9,
        "first_install_time": _time(random),
        "from_webstore": True,
        "granted_permissions": access,
        "last_update_time": _time(random),
        "location": 1,
        "manifest": manifest,
        "path": f"{_letters(random)}/1.2.3_0",
        "preferences": {},
        "was_installed_by_default": False,
    }


def _metrics(random: Random) -> Json:
    return {
        "client_id2": _hex(random, 16),
        "initial_logs2": [],
        "limited_entropy_randomization_source": _hex(random, 16),
        "low_entropy_source3": random.randrange(8000),
        "ongoing_logs3": [_log(random, 16_000) for _ in range(3)],
        "stability": {"browser_last_live_timestamp": _time(random), "stats_version": f"{_VERSION}-64"},
    }


def _log(random: Random, size: int) -> Json:
    return {"data": _base64(random, size), "hash": _base64(random, 20), "timestamp": "1763719200"}


def _models(random: Random) -> Json:
    return {str(number): {_base64(random, 12): _model(random) for _ in range(2)} for number in range(30)}


def _model(random: Random) -> Json:
    folder = f"{_hex(random, 4)}/{_hex(random, 8)}"
    return {"et": _time(random), "kbvd": True, "mbd": folder, "v": str(random.randrange(10**9))}


def _component(random: Random) -> Json:
    return {
        "cohort": "1:" + _letters(random)[:5] + ":",
        "cohortname": "Stable",
        "dlrc": 7264,
        "fp": "1." + _hex(random, 32),
        "installdate": 7050,
        "max_pv": "0.0.0.0",
        "pf": _hex(random, 16),
        "pv": f"2025.{random.randrange(12)}.{random.randrange(28)}.0",
    }


def _account(random: Random) -> Json:
    return {
        "account_id": _hex(random, 10),
        "accountcapabilities": {"accountcapabilities/" + _letters(random)[:24]: 1 for _ in range(16)},
        "email": "alex@mail.example",
        "full_name": "Alex Example",
        "locale": "de",
        "picture_url": "https://accounts.example/picture/" + _letters(random),
    }


def _window_placement(random: Random) -> Json:
    area = {"work_area_bottom": 1410, "work_area_left": 0, "work_area_right": 2560, "work_area_top": 30}
    return {"bottom": 1300, "left": random.randrange(99), "maximized": False, "right": 1700, "top": 40} | area


def _session_event(random: Random) -> Json:
    return {"crashed": False, "did_schedule_command": True, "tab_count": 9, "time": _time(random), "type": 2}


def _hosts_fetched(random: Random) -> Json:
    return {str(random.randrange(2**32)): random.random() * 1e10 for _ in range(40)}


def _macs(random: Random, count: int) -> dict[str, str]:
    return {_letters(random): _hex(random, 32).upper() for _ in range(count)}


def _hosts(random: Random, count: int) -> list[str]:
    endings = ("example", "com.example", "org.example", "shop.example", "news.example")
    return [f"www.{_letters(random)[:random.randrange(5, 16)]}.{random.choice(endings)}" for _ in range(count)]


def _time(random: Random) -> str:
    """Microseconds since 1601, a text as large integers are in these files."""
    return str(13_408_000_000_000_000 + random.randrange(10**13))


def _letters(random: Random) -> str:
    return "".join(random.choices("abcdefghijklmnop", k=32))


def _hex(random: Random, count: int) -> str:
    return random.randbytes(count).hex()


def _base64(random: Random, count: int) -> str:
    return b64encode(random.randbytes(count)).decode()


def _written(content: Json) -> bytes:
    text = json.dumps(content, sort_keys=True, ensure_ascii=False, separators=(",", ":"))
    return text.replace("<", "\\u003C").encode()
